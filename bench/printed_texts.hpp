#pragma once

#include <zupackage/package_info.hpp>

#include <initializer_list>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace bench {

/// The texts that a package of sample_packages.hpp is printed as, one by one: to be appended by hand.
class PrintedTexts
{
public:
    explicit PrintedTexts(const zu::PackageInfo& package)
    {
        add({"UUID: ",
             package.uuid(),
             "\n",
             "Version: ",
             package.version(),
             "\n",
             "Type Version: ",
             "\n",
             "Install Only At Startup: ",
             "0",
             "\n",
             "Author: ",
             "\n",
             "Organization: ",
             "\n",
             "Date: ",
             "\n",
             "Channel: ",
             "\n",
             "Path: ",
             "\n",
             "Names: ",
             "\n"});
        addByKey(package.names());
        add({"Descriptions:", "\n", "Supported Languages:", "\n", "Robotic requirements:", "\n",
             "Software requirements:", "\n", "Languages", "\n", "*********", "\n", "Behaviors", "\n", "*********",
             "\n"});
        for (const zu::BehaviorInfo& behavior : package.behaviors())
            addBehavior(behavior);
        add({"Dialogs", "\n", "*******", "\n"});
        std::ostringstream out;
        out << package;
        if (appended() != out.str())
            throw std::logic_error("these are not the texts that are printed");
    }

    std::string appended() const
    {
        std::string out;
        for (const std::string& text : m_texts)
            out += text;
        return out;
    }

private:
    using Texts = std::map<std::string, std::string>;
    using Lists = std::map<std::string, std::list<std::string>>;

    void add(std::initializer_list<std::string> texts) { m_texts.insert(m_texts.end(), texts); }

    void addByKey(const Texts& texts)
    {
        for (const auto& [key, text] : texts)
            add({"  ", key, " -> ", text, "\n"});
    }

    void addTags(const Lists& tags)
    {
        bool isFirst = true;
        for (const auto& [lang, list] : tags) {
            add({"  ", lang, " -> "});
            for (const std::string& tag : list) {
                isFirst ? add({tag}) : add({", ", tag});
                isFirst = false;
            }
            add({"\n"});
        }
    }

    void addQuoted(const std::string& key, const std::list<std::string>& texts)
    {
        add({"  ", key, " -> "});
        bool isFirst = true;
        for (const std::string& text : texts) {
            isFirst ? add({"\"", text, "\""}) : add({", ", "\"", text, "\""});
            isFirst = false;
        }
        add({"\n"});
    }

    void addBehavior(const zu::BehaviorInfo& behavior)
    {
        add({"Path: ", behavior.path(), "\n", "Nature: ", behavior.nature(), "\n", "UserRequestable", "1", "\n"});
        add({"Names: ", "\n"});
        addByKey(behavior.names());
        add({"Descriptions:", "\n"});
        addByKey(behavior.descriptions());
        add({"Tags:", "\n"});
        addTags(behavior.languagesToTags());
        add({"Trigger sentences:", "\n"});
        for (const auto& [lang, sentences] : behavior.languagesToTriggerSentences())
            addQuoted(lang, sentences);
        add({"Loading responses:", "\n"});
        for (const auto& [lang, responses] : behavior.languagesToLoadingResponses())
            addQuoted(lang, responses);
        add({"Conditions:", "\n"});
        addQuoted("entertain", behavior.conditions("entertain"));
        add({"Permissions:", "\n", behavior.permissions().front(), "\n"});
    }

    std::vector<std::string> m_texts;
};

} // namespace bench
