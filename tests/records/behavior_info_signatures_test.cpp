// Nothing runs here: what callers are built against is compared when this compiles.

#include "support/signature.hpp"

#include <zupackage/behavior_info.hpp>

#include <utility>

namespace zu {

using test::has;
using Text = const std::string&;
using Texts = std::list<std::string>;
using TextMap = const std::map<std::string, std::string>&;
using ListMap = const std::map<std::string, std::list<std::string>>&;

using B = BehaviorInfo;
using Add = void (B::*)(Text, Text);
using Insert = void (B::*)(Text, Text, int);
using Remove = bool (B::*)(Text, Text);
using Update = bool (B::*)(Text, Text, Text);
static_assert(std::is_same_v<decltype(std::declval<B&>() = std::declval<const B&>()), B>, "assignment gives a copy");
static_assert(has<std::string (B::*)() const>(&B::path) && has<void (B::*)(Text)>(&B::setPath));
static_assert(has<std::string (B::*)() const>(&B::nature) && has<void (B::*)(Text)>(&B::setNature));
static_assert(has<Text (*)()>(&B::natureInteractive) && has<Text (*)()>(&B::natureSolitary));
static_assert(has<bool (B::*)() const>(&B::isUserRequestable) && has<void (B::*)(bool)>(&B::setUserRequestable));
static_assert(has<TextMap (B::*)() const>(&B::names) && has<TextMap (B::*)() const>(&B::descriptions));
static_assert(has<std::string (B::*)(Text) const>(&B::name) && has<std::string (B::*)(Text) const>(&B::description));
static_assert(has<void (B::*)(Text, Text)>(&B::setName) && has<void (B::*)(Text, Text)>(&B::setDescription));
static_assert(has<Texts (B::*)(Text) const>(&B::tags) && has<ListMap (B::*)() const>(&B::languagesToTags));
static_assert(has<Texts (B::*)(Text) const>(&B::triggerSentences));
static_assert(has<ListMap (B::*)() const>(&B::languagesToTriggerSentences));
static_assert(has<Texts (B::*)(Text) const>(&B::loadingResponses));
static_assert(has<ListMap (B::*)() const>(&B::languagesToLoadingResponses));
static_assert(has<Texts (B::*)(Text) const>(&B::conditions));
static_assert(has<Texts (B::*)() const>(&B::permissions) && has<const Texts& (*)()>(&B::supportedPermissions));
static_assert(has<bool (B::*)(Text)>(&B::addPermission) && has<bool (B::*)(Text)>(&B::removePermission));
static_assert(has<bool (B::*)(Text) const>(&B::hasPermission));
static_assert(has<void (B::*)(Texts, Texts)>(&B::trimExtraInfo));
static_assert(has<const std::string*>(&B::k_permCanRunInSleep) && has<const std::string*>(&B::k_permCanRunOnPod));
static_assert(has<const std::string*>(&B::k_permCanSitDown) && has<const std::string*>(&B::k_permCanStandUp));
static_assert(has<Add>(&B::addTag) && has<Insert>(&B::insertTag) && has<Remove>(&B::removeTag) &&
              has<Update>(&B::updateTag));
static_assert(has<Add>(&B::addTriggerSentence) && has<Insert>(&B::insertTriggerSentence) &&
              has<Remove>(&B::removeTriggerSentence) && has<Update>(&B::updateTriggerSentence));
static_assert(has<Add>(&B::addLoadingResponse) && has<Insert>(&B::insertLoadingResponse) &&
              has<Remove>(&B::removeLoadingResponse) && has<Update>(&B::updateLoadingResponse));
static_assert(has<Add>(&B::addCondition) && has<Insert>(&B::insertCondition) && has<Remove>(&B::removeCondition) &&
              has<Update>(&B::updateCondition));

} // namespace zu
