#include "compare/ResultTable.h"

#include <algorithm>
#include <utility>

namespace corvane::compare {

namespace {

constexpr int kRowWidth = 58;
constexpr int kColumnWidth = 20;

double atPercentile(const std::vector<double>& sorted, int percentile) {
    const auto last = static_cast<double>(sorted.size() - 1);
    return sorted[static_cast<size_t>(last * percentile / 100.0 + 0.5)];
}

} // namespace

void ResultTable::set(const QString& row, const QString& column, double value,
                      const QString& text) {
    if (std::find(m_rows.begin(), m_rows.end(), row) == m_rows.end()) {
        m_rows.push_back(row);
    }
    m_cells[{row, column}] = {value, text.isEmpty() ? QString::number(value, 'f', 1) : text};
}

void ResultTable::setSpread(const QString& row, const QString& column, std::vector<double> values,
                            int percentile) {
    if (values.empty()) {
        return;
    }
    std::sort(values.begin(), values.end());
    const double median = atPercentile(values, 50);
    set(row, column, median,
        QStringLiteral("%1 / %2 / %3")
            .arg(median, 0, 'f', 0)
            .arg(atPercentile(values, percentile), 0, 'f', 0)
            .arg(values.back(), 0, 'f', 0));
}

const ResultTable::Cell* ResultTable::find(const QString& row, const QString& column) const {
    const auto found = m_cells.find({row, column});
    return found == m_cells.end() ? nullptr : &found->second;
}

QString ResultTable::print(const QString& heading, const std::vector<QString>& columns) const {
    QString text = heading.leftJustified(kRowWidth);
    for (const QString& column : columns) {
        text += column.rightJustified(kColumnWidth);
    }
    text += QStringLiteral("ratio").rightJustified(kColumnWidth / 2) + u'\n';
    for (const QString& row : m_rows) {
        text += row.leftJustified(kRowWidth);
        for (const QString& column : columns) {
            const Cell* const cell = find(row, column);
            text +=
                (cell != nullptr ? cell->text : QStringLiteral("-")).rightJustified(kColumnWidth);
        }
        const Cell* const first = find(row, columns.front());
        const Cell* const last = find(row, columns.back());
        const bool comparable = first != nullptr && last != nullptr && last->value > 0.0;
        text +=
            (comparable ? QString::number(first->value / last->value, 'f', 2) : QStringLiteral("-"))
                .rightJustified(kColumnWidth / 2) +
            u'\n';
    }
    return text;
}

} // namespace corvane::compare
