#include "site/site_writer.hpp"

#include "site/frame.hpp"
#include "site/package_page.hpp"
#include "site/page_names.hpp"
#include "site/resources.hpp"
#include "site/site_folder.hpp"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace zu::cli {

namespace {

class FolderSiteWriter : public SiteWriter
{
public:
    FolderSiteWriter(const std::string& path, std::string title) : m_folder(path), m_title(std::move(title)) {}

    std::string htmlOf(const SitePackage& package, std::size_t) const override
    {
        Html header;
        header << "<header class=\"site-nav\"><a href=\"../index.html\">"_html << m_title << "</a></header>\n"_html;
        PageFrame frame;
        frame.title = package.title + " – " + m_title;
        frame.rootPath = "../";
        return documentOf(frame, header, packageArticle(package, {}));
    }

    void add(SiteArticle article, std::size_t) override
    {
        const std::string name = "packages/" + m_names.next(article.identifier);
        m_folder.add(name, article.html);
        m_index.add(std::move(article.entry), name);
    }

    void finish() override
    {
        PageFrame frame;
        frame.title = m_title;
        frame.hasScript = true;
        m_folder.add("index.html", documentOf(frame, m_index.header(m_title), m_index.content()));
        m_folder.add("style.css", k_style);
        m_folder.publish();
    }

private:
    SiteFolder m_folder;
    std::string m_title;
    PageNames m_names;
    IndexPage m_index;
};

class SingleFileSiteWriter : public SiteWriter
{
public:
    SingleFileSiteWriter(std::string path, std::string title) : m_path(std::move(path)), m_title(std::move(title)) {}

    std::string htmlOf(const SitePackage& package, std::size_t number) const override
    {
        const std::string id = idOf(number);
        Html html;
        html << "<div id=\""_html << id << "\">\n"_html << packageArticle(package, {id + "-", 2})
             << "<p><a href=\"#content\">Back to the list</a></p>\n</div>\n"_html;
        return html.text();
    }

    void add(SiteArticle article, std::size_t number) override
    {
        m_articles.embed(article.html);
        m_index.add(std::move(article.entry), "#" + idOf(number));
    }

    void finish() override
    {
        PageFrame frame;
        frame.title = m_title;
        frame.style = PageFrame::Style::Inline;
        frame.hasScript = true;
        Html main;
        main << m_index.content() << m_articles;
        const std::string document = documentOf(frame, m_index.header(m_title), main);
        if (m_path != "-") {
            try {
                replaceManifest(m_path, document);
            } catch (const std::runtime_error& error) {
                throw SiteError(error.what());
            }
        } else if (std::fwrite(document.data(), 1, document.size(), stdout) != document.size() ||
                   std::fflush(stdout) != 0) {
            throw SiteError(std::string("cannot write to standard output: ") + std::strerror(errno));
        }
    }

private:
    static std::string idOf(std::size_t number) { return "package-" + std::to_string(number + 1); }

    std::string m_path;
    std::string m_title;
    Html m_articles;
    IndexPage m_index;
};

} // namespace

SiteArticle SiteWriter::articleOf(const SitePackage& package, std::size_t number) const
{
    SiteArticle article;
    if (!package.checked.failure.empty())
        article.failure = package.checked.complaint();
    else if (!package.refusal.empty())
        article.failure = "cannot read " + package.checked.name + ": " + package.refusal;
    article.failureExitCode = package.checked.failureExitCode;
    // What is no package has a page all the same, with what is wrong; what is no file has none.
    article.isShown = package.checked.failure.empty();
    if (article.isShown) {
        article.identifier = package.identifier();
        article.html = htmlOf(package, number);
        article.entry = IndexEntry::of(package);
    }
    return article;
}

std::unique_ptr<SiteWriter> folderSiteWriter(const std::string& path, const std::string& title)
{
    return std::make_unique<FolderSiteWriter>(path, title);
}

std::unique_ptr<SiteWriter> singleFileSiteWriter(const std::string& path, const std::string& title)
{
    return std::make_unique<SingleFileSiteWriter>(path, title);
}

} // namespace zu::cli
