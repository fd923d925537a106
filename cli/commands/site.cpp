#include "commands/site.hpp"

#include "manifest_search.hpp"
#include "ordered_parallel.hpp"
#include "output.hpp"
#include "site/site_folder.hpp"
#include "site/site_writer.hpp"
#include "terminal.hpp"

#include <algorithm>
#include <memory>

namespace zu::cli {

namespace {

struct SiteArguments
{
    std::vector<std::string> sources;
    std::string folder;
    std::string file;
    std::string title = "Packages";
};

/// Adds the packages to the site.
/// @param shown receives how many stand in it.
/// @return what the program ends with.
ExitCode addAll(const std::vector<std::string>& manifests, SiteWriter& site, std::size_t& shown)
{
    ExitCode result = k_success;
    std::size_t number = 0;
    Progress progress(manifests.size(), "read");
    inOrder<SiteArticle>(
        manifests.size(), [&](std::size_t i) { return site.articleOf(readSitePackage(manifests[i]), i); },
        [&](SiteArticle article) {
            if (!article.failure.empty()) {
                progress.clear();
                complain(article.failure);
                result = worse(result, article.failureExitCode);
            }
            if (article.isShown) {
                site.add(std::move(article), number);
                ++shown;
            }
            ++number;
            progress.advance();
            return true;
        });
    progress.clear();
    return result;
}

ExitCode makeSite(const SiteArguments& arguments)
{
    if (arguments.folder.empty() == arguments.file.empty()) {
        complain("name a folder with -o, or a file with --single");
        return k_usage;
    }
    if (arguments.title.find_first_not_of(" \t\n") == std::string::npos) {
        complain("--title: a site has no empty title");
        return k_usage;
    }
    ExitCode result = k_success;
    try {
        const std::unique_ptr<SiteWriter> site = arguments.file.empty()
                                                     ? folderSiteWriter(arguments.folder, arguments.title)
                                                     : singleFileSiteWriter(arguments.file, arguments.title);
        const std::vector<std::string> manifests = manifestsIn(arguments.sources, result);
        std::size_t shown = 0;
        result = worse(result, addAll(manifests, *site, shown));
        // A mistyped source must not put an empty site in the place of a good one.
        if (shown == 0)
            complain("there is no package to show; nothing is written");
        else
            site->finish();
    } catch (const SiteError& error) {
        complain(error.what());
        return worse(result, k_outputFailed);
    }
    return result;
}

std::function<ExitCode()> prepareSite(Arguments& arguments)
{
    auto parsed = std::make_shared<SiteArguments>();
    arguments.require(parsed->sources, "SOURCE", "FILE|FOLDER|-",
                      "Manifest files, folders of packages at any depth, or - for standard input");
    arguments.option(parsed->folder, "-o,--output", "DIR", "The folder of the site; it must hold nothing else");
    arguments.option(parsed->file, "--single", "FILE", "Write the site as one file, or - for standard output");
    arguments.option(parsed->title, "--title", "TEXT", "What the site is called; \"Packages\" by default");
    return [parsed] { return makeSite(*parsed); };
}

constexpr Example k_siteExamples[] = {
    {"zupackage site examples/packages --output site", "Make pages of all packages below a folder"},
    {"zupackage site story-teller --single story-teller.html", "Make one page of one package"},
};

} // namespace

const Command k_site = {"site", "Make a site of packages, as static pages", prepareSite, k_siteExamples};

} // namespace zu::cli
