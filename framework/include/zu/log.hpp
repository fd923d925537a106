#pragma once

#include <zu/export.hpp>

#include <atomic>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

/// The logger: records of numbered levels in named categories, given to handlers.
///
/// Every operation may be called from any thread, during static initialisation and at exit. A record that its
/// category does not let through costs one atomic load: neither is its message composed nor any handler called.
namespace zu::log {

/// Severity of a record; the smaller the number, the graver. The numbers are part of the interface.
enum class Level : int
{
    Silent = 0,  ///< as a threshold: lets nothing through; a record of this level is never written
    Fatal = 1,   ///< the program cannot go on
    Error = 2,   ///< what was asked for was not done
    Warning = 3, ///< it was done, and something about it is wrong
    Info = 4,    ///< what happens, for everyone; the threshold that categories begin with
    Verbose = 5, ///< what happens, in detail
    Debug = 6    ///< for those who change the program
};

/// The lower-case name of a level ("error"); empty for a number that is no level.
ZU_EXPORT std::string_view levelName(Level level) noexcept;

/// Where a record says it comes from. The texts are not copied; literals are meant.
struct Origin
{
    const char* file;     ///< as the writer names it, which need not be its path
    const char* function; ///< with the scopes that it stands in ("zu::dispatch")
    int line;             ///< counted from 1
};

/// What a handler is given. The views hold only during the call.
struct Record
{
    Level level;               ///< never Level::Silent
    std::string_view category; ///< the name of the category
    std::string_view message;  ///< as it was written: of any number of lines, and not sure to be UTF-8
    Origin origin;             ///< as it was given by the writer
};

/// A named category with its threshold. Made by addCategory() alone; lives as long as the process.
class ZU_EXPORT Category
{
public:
    Category(const Category&) = delete;
    Category& operator=(const Category&) = delete;
    ~Category() = default;

    /// The name that addCategory() was first given; it may be empty.
    const std::string& name() const noexcept { return m_name; }

    /// The most talkative level that is let through; Level::Info for a new category.
    Level threshold() const noexcept { return m_threshold.load(std::memory_order_relaxed); }

    /// For the records written from now on; Level::Silent lets none through.
    void setThreshold(Level threshold) noexcept { m_threshold.store(threshold, std::memory_order_relaxed); }

    /// Whether a record of `level` would be written.
    bool lets(Level level) const noexcept { return level != Level::Silent && level <= threshold(); }

private:
    friend class CategoryRegistry;
    explicit Category(std::string_view name) : m_name(name) {}

    const std::string m_name;
    std::atomic<Level> m_threshold{Level::Info};
};

/// The category of that name, made on the first call; every later call gives the same object. The reference is the
/// category's handle and stays valid for the life of the process.
ZU_EXPORT Category& addCategory(std::string_view name);

/// Writes a record whose message exists already.
ZU_EXPORT void write(const Category& category, Level level, const Origin& origin, std::string_view message);

/// The same by name; an unknown category is added first.
ZU_EXPORT void write(std::string_view category, Level level, const Origin& origin, std::string_view message);

/// Writes a record whose message `compose()` makes; it is called only when the category lets the record through. What
/// it throws leaves this call, and nothing is written.
template <class Compose, class = std::enable_if_t<std::is_invocable_r_v<std::string, Compose>>>
void write(const Category& category, Level level, const Origin& origin, Compose&& compose)
{
    if (category.lets(level)) {
        const std::string message = std::forward<Compose>(compose)();
        write(category, level, origin, std::string_view(message));
    }
}

/// The same by name; an unknown category is added first.
template <class Compose, class = std::enable_if_t<std::is_invocable_r_v<std::string, Compose>>>
void write(std::string_view category, Level level, const Origin& origin, Compose&& compose)
{
    write(addCategory(category), level, origin, std::forward<Compose>(compose));
}

/// Receives every record that its category lets through. Handlers run one at a time, in the order in which they were
/// added, on the thread that writes the record. A handler may itself write records (which it then receives, too) and
/// add or remove handlers; it must not wait for another thread that writes one. What it throws is dropped: a logger
/// that fails must not take the logging program with it.
using Handler = std::function<void(const Record&)>;

/// Names an added handler; never used twice in a process.
enum class HandlerId : std::uint64_t
{
};

/// The handler that is there from the start: standardErrorHandler().
inline constexpr HandlerId k_defaultHandler{0};

/// Adds a handler behind those present; an empty function is added and does nothing.
ZU_EXPORT HandlerId addHandler(Handler handler);

/// Removes a handler, after a call of it on another thread has ended, so that what it refers to may go.
/// @return false when no such handler is there (any more).
ZU_EXPORT bool removeHandler(HandlerId id);

/// Makes a handler that writes "[level] category: message" as one line to standard error. Control characters of the
/// message but for the tab, those that override the direction of writing, and bytes that are no UTF-8 are written as
/// escapes ("\n", "\x1b", "\u202e"), so that a record is one line whatever it holds and cannot steer a terminal. To get
/// the default output back after its removal, add this one.
ZU_EXPORT Handler standardErrorHandler();

} // namespace zu::log
