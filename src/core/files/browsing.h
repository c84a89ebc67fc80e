// The rules of browsing a collection: where the arrow buttons go (with the
// right button's meanings and wrap-around), the recent-files menu, and which
// collection the game opens at start.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "core/files/config.h"
#include "core/files/programfiles.h"

namespace combwise {

enum class Arrow { Previous = 0, Random = 1, Next = 2 };

// The puzzle number an arrow button leads to from `number` in a collection
// of `count` puzzles, released with `mouseButton` (2 = right: Previous goes
// to the first, Next to the last). `randomFraction` in [0, 1) draws the
// random puzzle. Nothing when the collection holds one puzzle or none, or
// for an index that is no arrow.
std::optional<int> arrowTarget(int arrowIndex, int mouseButton, int number, int count,
                               const std::function<double()>& randomFraction);

// Puts `path` at the top of the recent files unless an entry already names
// it (the menu is then left as it is); the fifth path drops out.
void addRecentFile(std::array<RecentFile, Settings::kRecentFiles>& entries, const std::string& path);

// The collection to open at start: the configured one when it names a
// non-empty file, else "puzzles.txt" when that exists, else nothing.
// `fileExists` tells whether a path names a file of non-zero length.
std::optional<std::string> startupCollection(const std::string& configured,
                                             const std::function<bool(const std::string&)>& fileExists);

// Whether a path names an existing file of non-zero length.
bool nonEmptyFile(const std::string& path);

}  // namespace combwise
