#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace corvane::structure {

/// Rooms, as paths below src/, and the rooms that each may include from. A room may always include
/// from itself.
using Arrows = std::map<std::string, std::set<std::string>>;

/// Reads the table of rooms in CONTRIBUTING.md: the rows whose first cell is a folder below src/;
/// the third lists the rooms it may use, "everything", or a dash. "everything" is the other rooms.
Arrows readArrows(const std::filesystem::path& contributing);

/// The includes below `sources` that point where they may not, one line each as
/// "file:line: text: reason": a room without an arrow, a path that does not begin at the include
/// root, a platform's own header in a shared source, and a folder that has no row.
std::vector<std::string> forbiddenIncludes(const std::filesystem::path& sources,
                                           const Arrows& arrows);

} // namespace corvane::structure
