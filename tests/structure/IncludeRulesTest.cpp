#include "IncludeRules.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <functional>

namespace corvane::structure {
namespace {

namespace fs = std::filesystem;

Arrows ownArrows() {
    return readArrows(fs::path(CORVANE_SOURCE_FOLDER) / "CONTRIBUTING.md");
}

TEST(IncludeRules, HoldInThisTree) {
    EXPECT_THAT(forbiddenIncludes(fs::path(CORVANE_SOURCE_FOLDER) / "src", ownArrows()),
                testing::IsEmpty());
}

/// A row may only point down: no two rooms may reach each other, by whatever way.
TEST(IncludeRules, TableHasNoCircleAndNamesOnlyRoomsThatExist) {
    const Arrows arrows = ownArrows();
    ASSERT_GT(arrows.size(), 10U);
    for (const auto& [room, allowed] : arrows) {
        EXPECT_TRUE(fs::is_directory(fs::path(CORVANE_SOURCE_FOLDER) / "src" / room)) << room;
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
    const auto write = [&](const char* file, const char* text) {
        fs::create_directories((root / file).parent_path());
        std::ofstream(root / file) << text;
    };
    write("CONTRIBUTING.md", "| Room | Holds | May use |\n|---|---|---|\n"
                             "| `src/top` | a | everything |\n"
                             "| `src/middle` | b | low |\n"
                             "| `src/middle/inner` | c | – |\n"
                             "| `src/low` | d | – |\n"
                             "| `tools/x` | e | top |\n");
    write("src/top/Top.h", "#include <QObject>\n");
    write("src/low/Low.h", "");
    write("src/low/linux/Deep.h", "#include \"low/Low.h\"\n");
    write("src/middle/inner/Inner.h", "#include \"low/Low.h\"\n");
    write("src/middle/Middle.cpp", "#include \"low/Low.h\"\n\n#include \"top/Top.h\"\n");
    write("src/top/Good.cpp", "#include \"middle/inner/Inner.h\"\n#include \"low/Low.h\"\n");
    write("src/top/Bad.cpp", "#include \"Top.h\"\n#include \"low/linux/Deep.h\"\n");
    write("src/stray/Stray.cpp", "#include \"low/Low.h\"\n");
    EXPECT_THAT(
        forbiddenIncludes(root / "src", readArrows(root / "CONTRIBUTING.md")),
        testing::ElementsAre(
            "src/middle/Middle.cpp:3: #include \"top/Top.h\": middle may not use top",
            "src/middle/inner/Inner.h:1: #include \"low/Low.h\": middle/inner may not use low",
            "src/stray/Stray.cpp:1: #include \"low/Low.h\": its folder has no row in the table",
            "src/top/Bad.cpp:1: #include \"Top.h\": not a path below src/",
            "src/top/Bad.cpp:2: #include \"low/linux/Deep.h\": "
            "a shared source may not use a platform's own header"));
}

} // namespace
} // namespace corvane::structure
