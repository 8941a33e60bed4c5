#include "IncludeRules.h"

#include <QRegularExpression>

#include <algorithm>
#include <fstream>
#include <optional>
#include <string_view>

namespace corvane::structure {

namespace fs = std::filesystem;

namespace {

bool isPlatformFolder(const std::string& name) {
    return name == "windows" || name == "linux";
}

bool hasPlatformFolder(const fs::path& path) {
    return std::ranges::any_of(
        path, [](const fs::path& part) { return isPlatformFolder(part.string()); });
}

/// The room of a file below src/: the longest row of the table that its folder begins with.
std::optional<std::string> roomOf(const fs::path& file, const Arrows& arrows) {
    for (fs::path folder = file.parent_path(); !folder.empty(); folder = folder.parent_path()) {
        if (arrows.contains(folder.generic_string())) {
            return folder.generic_string();
        }
    }
    return std::nullopt;
}

std::vector<std::string> cells(const std::string& row) {
    std::vector<std::string> result;
    size_t begin = row.find('|');
    while (begin != std::string::npos) {
        const size_t end = row.find('|', begin + 1);
        if (end == std::string::npos) {
            break;
        }
        result.push_back(row.substr(begin + 1, end - begin - 1));
        begin = end;
    }
    return result;
}

class Checker {
public:
    Checker(const fs::path& sources, const Arrows& arrows) : m_sources(sources), m_arrows(arrows) {}

    std::vector<std::string> check() {
        for (const auto& entry : fs::recursive_directory_iterator(m_sources)) {
            const auto extension = entry.path().extension();
            if (extension == ".h" || extension == ".cpp") {
                checkFile(fs::relative(entry.path(), m_sources));
            }
        }
        std::ranges::sort(m_found);
        return std::move(m_found);
    }

private:
    void checkFile(const fs::path& file) {
        static const QRegularExpression kInclude(
            QStringLiteral(R"(^\s*#\s*include\s*\"([^\"]+)\")"));
        std::ifstream stream(m_sources / file);
        std::string text;
        for (int line = 1; std::getline(stream, text); ++line) {
            const auto match = kInclude.match(QString::fromStdString(text));
            if (!match.hasMatch()) {
                continue;
            }
            if (const auto reason = reasonAgainst(file, match.captured(1).toStdString())) {
                m_found.push_back("src/" + file.generic_string() + ":" + std::to_string(line) +
                                  ": " + text + ": " + *reason);
            }
        }
    }

    std::optional<std::string> reasonAgainst(const fs::path& file, const fs::path& header) const {
        const auto from = roomOf(file, m_arrows);
        if (!from) {
            return "its folder has no row in the table";
        }
        const bool isGenerated = fs::exists(m_sources / (header.string() + ".in"));
        if (!isGenerated && !fs::exists(m_sources / header)) {
            return "not a path below src/";
        }
        const auto to = roomOf(header, m_arrows);
        if (!to) {
            return "the header's folder has no row in the table";
        }
        if (*from != *to && !m_arrows.at(*from).contains(*to)) {
            return *from + " may not use " + *to;
        }
        if (hasPlatformFolder(header) && !hasPlatformFolder(file)) {
            return "a shared source may not use a platform's own header";
        }
        return std::nullopt;
    }

    const fs::path m_sources;
    const Arrows& m_arrows;
    std::vector<std::string> m_found;
};

} // namespace

Arrows readArrows(const fs::path& contributing) {
    static const QRegularExpression kRoom(QStringLiteral("^\\s*`src/([^`]+)`\\s*$"));
    static const QRegularExpression kWord(QStringLiteral("[a-z0-9/]+"));
    Arrows arrows;
    std::vector<std::string> unbound;
    std::ifstream stream(contributing);
    for (std::string row; std::getline(stream, row);) {
        const auto columns = cells(row);
        if (columns.size() < 3) {
            continue;
        }
        const auto match = kRoom.match(QString::fromStdString(columns[0]));
        if (!match.hasMatch()) {
            continue;
        }
        const std::string room = match.captured(1).toStdString();
        auto& allowed = arrows[room];
        auto words = kWord.globalMatch(QString::fromStdString(columns[2]));
        while (words.hasNext()) {
            allowed.insert(words.next().captured().toStdString());
        }
        if (allowed.erase("everything") > 0) {
            unbound.push_back(room);
        }
    }
    for (const std::string& room : unbound) {
        for (const auto& [other, allowed] : arrows) {
            arrows[room].insert(other);
        }
    }
    return arrows;
}

std::vector<std::string> forbiddenIncludes(const fs::path& sources, const Arrows& arrows) {
    return Checker(sources, arrows).check();
}

} // namespace corvane::structure
