#pragma once

#include <zupackage/export.hpp>

#include <iosfwd>
#include <list>
#include <map>
#include <memory>
#include <string>

namespace VX {
class VXValue;
}

namespace zu {

struct BehaviorInfoPrivate;

/// One behavior of a package: a unit that the robot can run.
///
/// Texts are UTF-8. Language codes and purposes are keys exactly as given: compared byte by byte, never normalised, and
/// a look-up never falls back to another language. Lists keep insertion order. Setters and adders take the value first
/// and the key last. Nothing throws on bad input; refusals are results.
///
/// A behavior owns its content; a copy is deep and independent. There are no move operations: a moved-from behavior
/// would be left without content.
///
/// Not synchronised. triggerSentences(), loadingResponses() and conditions() may write although they are const, so even
/// readers of one object must take turns.
class ZUPACKAGE_EXPORT BehaviorInfo
{
public:
    /// @name Names of the permissions that a behavior can claim
    /// @{
    static const std::string k_permCanRunInSleep; ///< "canRunInSleep"
    static const std::string k_permCanRunOnPod;   ///< "canRunOnPod"
    static const std::string k_permCanSitDown;    ///< "canSitDown"
    static const std::string k_permCanStandUp;    ///< "canStandUp"
    /// @}

    /// A behavior with empty texts, maps and lists, not user-requestable.
    BehaviorInfo();
    /// A deep copy; empty lists that triggerSentences() and the like have made in `other` are copied, too.
    BehaviorInfo(const BehaviorInfo& other);
    /// Decodes what toVXValue() encodes: an Array of pairs, found by their keys, in any order; pairs of other keys are
    /// ignored. A value that is no Array gives an empty behavior; what is wrong inside one throws VX::VXError. Of
    /// permissions that follow an equal one, one is kept; they are not compared with the supported ones. A Binary in
    /// `value` that is read as a text becomes a String, see VX::VXValue.
    BehaviorInfo(const VX::VXValue& value); // NOLINT(google-explicit-constructor): callers are used to it
    ~BehaviorInfo();

    /// Copies the content of `other` into this object. References to its fields, maps and lists stay valid, those to
    /// their elements do not.
    /// @return a further copy, by value: callers built against this signature rely on it.
    BehaviorInfo operator=(const BehaviorInfo& other);

    /// Path of the behavior inside the package.
    /// @{
    std::string path() const;
    void setPath(const std::string& path);
    /// @}

    /// The kind of behavior: natureInteractive() or natureSolitary(), but any text is kept as given.
    /// @{
    std::string nature() const;
    void setNature(const std::string& nature);
    /// @}

    /// "interactive"
    static const std::string& natureInteractive();
    /// "solitary"
    static const std::string& natureSolitary();

    /// Whether a user may request the behavior.
    /// @{
    bool isUserRequestable() const;
    void setUserRequestable(bool requestable);
    /// @}

    /// Display names by language.
    const std::map<std::string, std::string>& names() const;
    /// Descriptions by language.
    const std::map<std::string, std::string>& descriptions() const;

    /// The display name in exactly `lang`; empty when there is none.
    std::string name(const std::string& lang) const;
    /// The description in exactly `lang`; empty when there is none.
    std::string description(const std::string& lang) const;

    /// Sets or replaces the display name in `lang`.
    void setName(const std::string& name, const std::string& lang);
    /// Sets or replaces the description in `lang`.
    void setDescription(const std::string& description, const std::string& lang);

    /// @name Tags by language
    ///
    /// The four families of lists (tags, trigger sentences, loading responses, conditions) have the same operations.
    /// @{

    /// A copy of the tags of `lang`; empty, and nothing is created, when there are none.
    std::list<std::string> tags(const std::string& lang) const;
    /// The lists of all languages, empty ones included.
    const std::map<std::string, std::list<std::string>>& languagesToTags() const;
    /// Appends a tag, equal and empty ones included; an absent list is created.
    void addTag(const std::string& tag, const std::string& lang);
    /// Puts a tag before the one at `position`, counted from 0; a position that names none appends. An absent list is
    /// created.
    void insertTag(const std::string& tag, const std::string& lang, int position);
    /// Takes away the first tag equal to `tag`; the list stays, even when it becomes empty.
    /// @return false when there is none.
    bool removeTag(const std::string& tag, const std::string& lang);
    /// Replaces the first tag equal to `oldTag`; its place in the list is kept.
    /// @return false, and nothing is created, when there is none.
    bool updateTag(const std::string& oldTag, const std::string& newTag, const std::string& lang);
    /// @}

    /// @name Sentences that start the behavior, by language
    /// @{

    /// A copy of the sentences of `lang`. When there is no list for `lang` an empty one is created, although the
    /// function is const: dumps and written manifests of existing callers show the entry, so it is kept.
    std::list<std::string> triggerSentences(const std::string& lang) const;
    /// The lists of all languages, empty ones included.
    const std::map<std::string, std::list<std::string>>& languagesToTriggerSentences() const;
    /// As addTag().
    void addTriggerSentence(const std::string& sentence, const std::string& lang);
    /// As insertTag().
    void insertTriggerSentence(const std::string& sentence, const std::string& lang, int position);
    /// As removeTag().
    bool removeTriggerSentence(const std::string& sentence, const std::string& lang);
    /// As updateTag().
    bool updateTriggerSentence(const std::string& oldSentence, const std::string& newSentence, const std::string& lang);
    /// @}

    /// @name Sentences said while the behavior loads, by language
    /// @{

    /// A copy of the responses of `lang`; creates an absent list, as triggerSentences() does.
    std::list<std::string> loadingResponses(const std::string& lang) const;
    /// The lists of all languages, empty ones included.
    const std::map<std::string, std::list<std::string>>& languagesToLoadingResponses() const;
    /// As addTag().
    void addLoadingResponse(const std::string& response, const std::string& lang);
    /// As insertTag().
    void insertLoadingResponse(const std::string& response, const std::string& lang, int position);
    /// As removeTag().
    bool removeLoadingResponse(const std::string& response, const std::string& lang);
    /// As updateTag().
    bool updateLoadingResponse(const std::string& oldResponse, const std::string& newResponse, const std::string& lang);
    /// @}

    /// @name Conditions under which the behavior may start by itself, by purpose
    /// @{

    /// A copy of the conditions for `purpose`; creates an absent list, as triggerSentences() does.
    std::list<std::string> conditions(const std::string& purpose) const;
    /// As addTag().
    void addCondition(const std::string& condition, const std::string& purpose);
    /// As insertTag().
    void insertCondition(const std::string& condition, const std::string& purpose, int position);
    /// As removeTag().
    bool removeCondition(const std::string& condition, const std::string& purpose);
    /// As updateTag().
    bool updateCondition(const std::string& oldCondition, const std::string& newCondition, const std::string& purpose);
    /// @}

    /// The claimed permissions, each once, in the order in which they were added.
    std::list<std::string> permissions() const;
    /// Claims a permission.
    /// @return false, and nothing changes, when it is claimed already or is not one of supportedPermissions().
    bool addPermission(const std::string& permission);
    /// Whether the behavior claims exactly this one; decoded behaviors may claim some that are not supported.
    bool hasPermission(const std::string& permission) const;
    /// @return false when the permission was not claimed.
    bool removePermission(const std::string& permission);
    /// The permissions there are: canRunInSleep, canRunOnPod, canStandUp, canSitDown. The order is fixed, and is not
    /// that of the alphabet.
    static const std::list<std::string>& supportedPermissions();

    /// Removes the names and descriptions whose language is not kept by `descriptionLanguages`, and the tags, trigger
    /// sentences and loading responses whose language is not kept by `supportedLanguages`. A list keeps a language when
    /// one of its elements is a prefix of the code: "en" keeps "en" and "en_US", an empty element keeps everything, an
    /// empty list nothing. Conditions and permissions stay.
    void trimExtraInfo(std::list<std::string> descriptionLanguages, std::list<std::string> supportedLanguages);

    /// Encodes the behavior for the older remote-call layer: 11 pairs of a key and a value, in a fixed order. `value`
    /// must be Invalid or an Array, else VX::VXError is thrown; it is replaced as a whole.
    void toVXValue(VX::VXValue& value) const;

private:
    friend struct PrivateRecord;
    const std::unique_ptr<BehaviorInfoPrivate> m_p;
};

/// Prints the behavior for people, an item a line, flushed line by line. Flags print as 1 or 0,
/// whatever the format of the stream. The separator between tags is carried over from one language to the next
/// ("  fr -> , c"); readers of these texts expect it.
ZUPACKAGE_EXPORT std::ostream& operator<<(std::ostream& out, const BehaviorInfo& behavior);

} // namespace zu
