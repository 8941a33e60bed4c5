#pragma once

#include <QString>

#include <map>
#include <optional>
#include <vector>

namespace corvane::compare {

/// Measured values by row and column, for a plain text table.
class ResultTable {
public:
    /// Adds `value`, or the number of a row that is there already. `text` is shown in its place.
    void set(const QString& row, const QString& column, double value, const QString& text = {});

    /// Median, 90th or other percentile and maximum of `values`; the ratio is that of the medians.
    void setSpread(const QString& row, const QString& column, std::vector<double> values,
                   int percentile);

    /// The columns as given, and the ratio of the first to the last.
    QString print(const QString& heading, const std::vector<QString>& columns) const;

private:
    struct Cell {
        double value = 0.0;
        QString text;
    };

    const Cell* find(const QString& row, const QString& column) const;

    std::vector<QString> m_rows;
    std::map<std::pair<QString, QString>, Cell> m_cells;
};

} // namespace corvane::compare
