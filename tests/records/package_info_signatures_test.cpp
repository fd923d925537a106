// Nothing runs here: what callers are built against is compared when this compiles.

#include "support/signature.hpp"

#include <zupackage/package_info.hpp>

#include <ostream>
#include <utility>

namespace zu {

using test::has;
using P = PackageInfo;
using Text = const std::string&;
using TextList = const std::list<std::string>&;
using TextMap = const std::map<std::string, std::string>&;

static_assert(std::is_same_v<decltype(std::declval<P&>() = std::declval<const P&>()), P>, "assignment gives a copy");
static_assert(has<Text (P::*)() const>(&P::uuid) && has<void (P::*)(Text)>(&P::setUuid));
static_assert(has<Text (P::*)() const>(&P::version) && has<void (P::*)(Text)>(&P::setVersion));
static_assert(has<Text (P::*)() const>(&P::author) && has<void (P::*)(Text)>(&P::setAuthor));
static_assert(has<Text (P::*)() const>(&P::channel) && has<void (P::*)(Text)>(&P::setChannel));
static_assert(has<Text (P::*)() const>(&P::organization) && has<void (P::*)(Text)>(&P::setOrganization));
static_assert(has<Text (P::*)() const>(&P::date) && has<void (P::*)(Text)>(&P::setDate));
static_assert(has<Text (P::*)() const>(&P::typeVersion) && has<void (P::*)(Text)>(&P::setTypeVersion));
static_assert(has<Text (P::*)() const>(&P::installer) && has<void (P::*)(Text)>(&P::setInstaller));
static_assert(has<Text (P::*)() const>(&P::path) && has<void (P::*)(Text)>(&P::setPath));
static_assert(has<const bool& (P::*)() const>(&P::installOnlyAtStartup));
static_assert(has<void (P::*)(const bool&)>(&P::setInstallOnlyAtStartup));
static_assert(has<Text (P::*)(Text) const>(&P::name) && has<Text (P::*)(Text) const>(&P::description));
static_assert(has<void (P::*)(Text, Text)>(&P::setName) && has<void (P::*)(std::string, Text)>(&P::setDescription));
static_assert(has<TextMap (P::*)() const>(&P::names) && has<TextMap (P::*)() const>(&P::descriptions));
static_assert(has<TextList (P::*)() const>(&P::supportedLanguages) &&
              has<TextList (P::*)() const>(&P::descriptionLanguages));
static_assert(std::is_same_v<decltype(std::declval<const P&>().behaviors()), const std::list<BehaviorInfo>&>);
static_assert(std::is_same_v<decltype(std::declval<P&>().behaviors()), std::list<BehaviorInfo>&>);
static_assert(has<const std::list<DialogInfo>& (P::*)() const>(&P::dialogs));
static_assert(has<const std::list<LanguageInfo>& (P::*)() const>(&P::languages));
static_assert(has<std::list<RobotRequirement>& (P::*)() const>(&P::robotRequirements), "mutable from a const package");
static_assert(has<std::list<MorvoRequirement>& (P::*)() const>(&P::morvoRequirements), "mutable from a const package");
static_assert(has<const std::list<PackageService>& (P::*)() const>(&P::services));
static_assert(has<TextList (P::*)() const>(&P::executableFiles));
static_assert(has<bool (P::*)() const>(&P::hasBehavior));
static_assert(has<void (P::*)(Text)>(&P::addSupportedLanguage) && has<void (P::*)(Text)>(&P::removeSupportedLanguage));
static_assert(has<void (P::*)(Text)>(&P::addDescriptionLanguage) &&
              has<void (P::*)(Text)>(&P::removeDescriptionLanguage));
static_assert(has<void (P::*)(const BehaviorInfo&)>(&P::addBehavior));
static_assert(has<void (P::*)(const DialogInfo&)>(&P::addDialog));
static_assert(has<void (P::*)(const LanguageInfo&)>(&P::addLanguage));
static_assert(has<void (P::*)(const RobotRequirement&)>(&P::addRobotRequirement));
static_assert(has<void (P::*)(const MorvoRequirement&)>(&P::addMorvoRequirement));
static_assert(has<void (P::*)(const PackageService&)>(&P::addService));
static_assert(has<void (P::*)(Text)>(&P::addExecutableFile));
using Clear = void (P::*)();
static_assert(has<Clear>(&P::clearNames) && has<Clear>(&P::clearSupportedLanguages));
static_assert(has<Clear>(&P::clearDescriptionLanguages) && has<Clear>(&P::clearBehaviors) &&
              has<Clear>(&P::clearDialogs));
static_assert(has<Clear>(&P::clearRobotRequirements) && has<Clear>(&P::clearMorvoRequirements));
static_assert(has<Clear>(&P::clearServices) && has<Clear>(&P::trimExtraInfo));
template <class Record>
constexpr bool isPrinted =
    std::is_same_v<decltype(std::declval<std::ostream&>() << std::declval<const Record&>()), std::ostream&>;
static_assert(isPrinted<PackageInfo> && isPrinted<BehaviorInfo> && isPrinted<DialogInfo> && isPrinted<LanguageInfo>);
static_assert(has<bool (P::*)(Text)>(&P::loadFromManifestContent) &&
              has<std::string (P::*)()>(&P::saveToManifestContent));
static_assert(has<bool (P::*)(QFile&)>(static_cast<bool (P::*)(QFile&)>(&P::loadFromManifestFile)));
static_assert(has<bool (P::*)(Text)>(static_cast<bool (P::*)(Text)>(&P::loadFromManifestFile)));

static_assert(has<bool (P::*)(QFile&) const>(static_cast<bool (P::*)(QFile&) const>(&P::saveToManifestFile)));
static_assert(has<bool (P::*)(Text) const>(static_cast<bool (P::*)(Text) const>(&P::saveToManifestFile)));

// The operations that are missing on purpose.
template <class T, class = void>
constexpr bool clearsDescriptions = false;
template <class T>
constexpr bool clearsDescriptions<T, std::void_t<decltype(&T::clearDescriptions)>> = true;
template <class T, class = void>
constexpr bool clearsLanguages = false;
template <class T>
constexpr bool clearsLanguages<T, std::void_t<decltype(&T::clearLanguages)>> = true;
template <class T, class = void>
constexpr bool clearsExecutableFiles = false;
template <class T>
constexpr bool clearsExecutableFiles<T, std::void_t<decltype(&T::clearExecutableFiles)>> = true;
static_assert(!clearsDescriptions<P> && !clearsLanguages<P> && !clearsExecutableFiles<P>);

} // namespace zu
