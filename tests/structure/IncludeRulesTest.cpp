#include "support/Files.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <ranges>
#include <set>

namespace corvane::structure {
namespace {

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

/// Rooms, as paths below src/, and the rooms that each may include from. A room may always include
/// from itself.
using Arrows = std::map<std::string, std::set<std::string>>;

const fs::path kRoot = CORVANE_SOURCE_FOLDER;

QString textOf(const fs::path& path) {
    return QString::fromUtf8(test::contentOf(QString::fromStdString(path.string())));
}

/// Reads the table of rooms: the rows whose first cell is a folder below src/; the third lists the
/// rooms it may use, "everything", or a dash.
Arrows readArrows(const fs::path& contributing) {
    static const QRegularExpression kRow(u"^\\| *`src/([^`]+)` *\\|[^|\n]*\\|([^|\n]*)"_s,
                                         QRegularExpression::MultilineOption);
    static const QRegularExpression kRoom(u"[a-z0-9/]+"_s);
    const QString text = textOf(contributing);
    Arrows arrows;
    for (const auto& row : kRow.globalMatch(text)) {
        auto& allowed = arrows[row.captured(1).toStdString()];
        for (const auto& room : kRoom.globalMatch(row.captured(2))) {
            allowed.insert(room.captured().toStdString());
        }
    }
    for (auto& [room, allowed] : arrows) {
        if (allowed.erase("everything") > 0) {
            std::ranges::copy(std::views::keys(arrows), std::inserter(allowed, allowed.end()));
        }
    }
    return arrows;
}

/// The longest row of the table that the folder of a file below src/ begins with; empty for none.
std::string roomOf(const fs::path& file, const Arrows& arrows) {
    fs::path folder = file.parent_path();
    while (!folder.empty() && !arrows.contains(folder.generic_string())) {
        folder = folder.parent_path();
    }
    return folder.generic_string();
}

bool hasPlatformFolder(const fs::path& path) {
    return std::ranges::any_of(
        path, [](const fs::path& part) { return part == "windows" || part == "linux"; });
}

/// Why a file below `sources` may not include a header; empty where it may.
std::string reasonAgainst(const fs::path& file, const fs::path& header, const fs::path& sources,
                          const Arrows& arrows) {
    const std::string from = roomOf(file, arrows);
    const std::string to = roomOf(header, arrows);
    const bool isGenerated = fs::exists(sources / (header.string() + ".in"));
    if (from.empty()) {
        return "its folder has no row in the table";
    }
    if (to.empty() || (!isGenerated && !fs::exists(sources / header))) {
        return "not a path into a room below src/";
    }
    if (from != to && !arrows.at(from).contains(to)) {
        return from + " may not use " + to;
    }
    return hasPlatformFolder(header) && !hasPlatformFolder(file)
               ? "a shared source may not use a platform's own header"
               : "";
}

/// The includes below `sources` that point where they may not, as "file: header: reason".
std::set<std::string> forbiddenIncludes(const fs::path& sources, const Arrows& arrows) {
    static const QRegularExpression kInclude(u"^\\s*#\\s*include\\s*\"([^\"]+)\""_s,
                                             QRegularExpression::MultilineOption);
    std::set<std::string> found;
    for (const auto& entry : fs::recursive_directory_iterator(sources)) {
        const fs::path file = fs::relative(entry.path(), sources);
        if (file.extension() != ".h" && file.extension() != ".cpp") {
            continue;
        }
        const QString text = textOf(entry.path());
        for (const auto& include : kInclude.globalMatch(text)) {
            const std::string header = include.captured(1).toStdString();
            const std::string reason = reasonAgainst(file, header, sources, arrows);
            if (!reason.empty()) {
                found.insert(file.generic_string() + ": " + header + ": " + reason);
            }
        }
    }
    return found;
}

TEST(IncludeRules, HoldInThisTree) {
    EXPECT_THAT(forbiddenIncludes(kRoot / "src", readArrows(kRoot / "CONTRIBUTING.md")),
                testing::IsEmpty());
}

/// A row may only point down: no two rooms may reach each other, by whatever way.
TEST(IncludeRules, TableHasNoCircleAndNamesOnlyRoomsThatExist) {
    const Arrows arrows = readArrows(kRoot / "CONTRIBUTING.md");
    ASSERT_GT(arrows.size(), 10U);
    for (const auto& [room, allowed] : arrows) {
        EXPECT_TRUE(fs::is_directory(kRoot / "src" / room)) << room;
        std::set<std::string> reached;
        const std::function<void(const std::string&)> reach = [&](const std::string& from) {
            ASSERT_TRUE(arrows.contains(from)) << room << " may use " << from;
            for (const std::string& to : arrows.at(from)) {
                if (to != from && reached.insert(to).second) {
                    reach(to);
                }
            }
        };
        reach(room);
        EXPECT_FALSE(reached.contains(room)) << room << " reaches itself";
    }
}

TEST(IncludeRules, FindWhatIsPlanted) {
    const QTemporaryDir folder;
    const fs::path root = folder.path().toStdString();
    const std::pair<const char*, const char*> files[] = {
        {"CONTRIBUTING.md", "| `src/top` | a | everything |\n"
                            "| `src/middle` | b | low |\n"
                            "| `src/low` | c | – |\n"},
        {"src/top/Top.h", "#include <QObject>\n#include \"middle/Middle.h\"\n"},
        {"src/middle/Middle.h", "#include \"low/linux/Low.h\"\n\n#include \"top/Top.h\"\n"},
        {"src/low/linux/Low.h", "#include \"Low.h\"\n"},
        {"src/stray/Stray.cpp", "#include \"top/Top.h\"\n"}};
    for (const auto& [file, text] : files) {
        fs::create_directories((root / file).parent_path());
        test::writeFile(QString::fromStdString((root / file).string()), text);
    }
    EXPECT_THAT(
        forbiddenIncludes(root / "src", readArrows(root / "CONTRIBUTING.md")),
        testing::ElementsAre(
            "low/linux/Low.h: Low.h: not a path into a room below src/",
            "middle/Middle.h: low/linux/Low.h: a shared source may not use a platform's own header",
            "middle/Middle.h: top/Top.h: middle may not use top",
            "stray/Stray.cpp: top/Top.h: its folder has no row in the table"));
}

} // namespace
} // namespace corvane::structure
