#include "check/findings.hpp"

#include <zupackage/authoring/rule.hpp>

#include <algorithm>

namespace zupackage::check {

const std::vector<const RuleRow*>& allRules()
{
    static const std::vector<const RuleRow*> all = [] {
        std::vector<const RuleRow*> rows;
        for (const auto* group :
             {&documentRules(), &vocabularyRules(), &completenessRules(), &valueRules(), &textRules(), &sectionRules(),
              &repetitionRules(), &languageRules(), &translationRules(), &fileRules()}) {
            for (const RuleRow& row : *group)
                rows.push_back(&row);
        }
        return rows;
    }();
    return all;
}

} // namespace zupackage::check

namespace zu::authoring {

const std::vector<Rule>& rules()
{
    static const std::vector<Rule> all = [] {
        std::vector<Rule> rules;
        for (const zupackage::check::RuleRow* row : zupackage::check::allRules())
            rules.push_back(row->rule);
        return rules;
    }();
    return all;
}

const Rule* findRule(std::string_view id)
{
    const std::vector<Rule>& all = rules();
    const auto found = std::find_if(all.begin(), all.end(), [id](const Rule& rule) { return rule.id == id; });
    return found == all.end() ? nullptr : &*found;
}

std::string manifestWith(const Rule& rule, std::string_view example)
{
    const auto framed = [&](ExampleFrame frame, std::string_view otherwise) {
        return rule.frame == frame ? example : otherwise;
    };
    if (rule.frame == ExampleFrame::Document)
        return std::string(example);
    const auto line = [&](ExampleFrame frame, std::string_view indentation) {
        return rule.frame == frame && !example.empty() ? std::string(indentation).append(example) + "\n"
                                                       : std::string();
    };
    std::string manifest = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    manifest.append(framed(ExampleFrame::RootTag, "<package uuid=\"org.example.hello\" version=\"1.0\">"));
    manifest += "\n  <names>\n    <name lang=\"en\">Hello</name>\n  </names>\n"
                "  <descriptions>\n    <description lang=\"en\">Says hello</description>\n  </descriptions>\n  ";
    manifest.append(framed(ExampleFrame::Languages,
                           "<supportedLanguages><language>en</language></supportedLanguages>"
                           "<descriptionLanguages><language>en</language></descriptionLanguages>"));
    manifest += "\n  <contents>\n    <behaviorContent path=\"hello\">\n      <nature>interactive</nature>\n" +
                line(ExampleFrame::Behavior, "      ") + "    </behaviorContent>\n" +
                line(ExampleFrame::Contents, "    ") + "  </contents>\n" + line(ExampleFrame::Package, "  ") +
                "</package>\n";
    return manifest;
}

} // namespace zu::authoring
