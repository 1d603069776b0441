// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/ImportSplits.h"

#include "tools/exchange/CellTexts.h"
#include "tools/exchange/DayColumns.h"

#include <QHeaderView>

#include <map>
#include <utility>

namespace zelvia
{
namespace
{

constexpr int kKm = 0;
constexpr int kTime = 1;
constexpr int kHeld = 2;
constexpr int kFarthest = 100; // Places of a day.

/// The times of a day by their kilometres.
std::map<int, QString> TimesOf(const RecordGiorno& day)
{
    int unreadable = 0;
    std::map<int, QString> times;
    for (const DaySplit& split : SplitsOf(day, unreadable)) {
        times[WholeNumber(split.km).value_or(0)] = QString::fromStdString(split.time);
    }
    return times;
}

} // namespace

ImportSplits::ImportSplits()
{
    constexpr int widths[] = {40, 68, 76};
    setObjectName(QStringLiteral("splits"));
    setAccessibleName(tr("Tempi Km"));
    setColumnCount(kHeld + 1);
    setHorizontalHeaderLabels({tr("Km"), tr("Tempo"), tr("Nel diario")});
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    for (int column = kKm; column <= kHeld; ++column) {
        setColumnWidth(column, widths[column]);
    }
    connect(this, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* item) {
        if (!filling_) {
            Take(*item);
        }
    });
}

void ImportSplits::AddRow(const QString& km, const QString& time, const QString& held)
{
    const int row = rowCount();
    insertRow(row);
    const QString cells[] = {km, time, held};
    for (int column = kKm; column <= kHeld; ++column) {
        auto* item = new QTableWidgetItem(cells[column]);
        item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        const bool fixed = column == kHeld || (column == kKm && !km.isEmpty());
        item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | (fixed ? Qt::NoItemFlags : Qt::ItemIsEditable));
        setItem(row, column, item);
    }
}

void ImportSplits::Show(const RecordGiorno& day, const RecordGiorno& held)
{
    if (day.ListaKm != day_.ListaKm || held.ListaKm != held_.ListaKm || rowCount() == 0) {
        day_ = day;
        held_ = held;
        Fill();
    }
}

void ImportSplits::Fill()
{
    const int row = currentRow();
    const int column = currentColumn();
    filling_ = true;
    setRowCount(0);
    std::map<int, std::pair<QString, QString>> rows;
    for (const auto& [km, time] : TimesOf(day_)) {
        rows[km].first = time;
    }
    for (const auto& [km, time] : TimesOf(held_)) {
        rows[km].second = time;
    }
    for (const auto& [km, times] : rows) {
        AddRow(QString::number(km), times.first, times.second);
    }
    AddRow({}, {}, {});
    filling_ = false;
    if (row >= 0) {
        setCurrentCell(std::min(row, rowCount() - 1), column);
    }
}

QString ImportSplits::Cell(int row, int column) const
{
    return item(row, column)->text().trimmed();
}

/// None when a cell is no kilometre or no time.
std::optional<std::vector<KilometreTime>> ImportSplits::Read() const
{
    std::map<int, int> times;
    for (int row = 0; row < rowCount(); ++row) {
        if (Cell(row, kTime).isEmpty()) {
            continue;
        }
        const auto km = WholeNumber(Cell(row, kKm).toStdString());
        const auto seconds = SecondsOf(Cell(row, kTime).toStdString(), false);
        if (!km || *km < 1 || *km > kFarthest || !seconds || *seconds == 0) {
            return std::nullopt;
        }
        times[*km] = *seconds;
    }
    std::vector<KilometreTime> splits;
    for (const auto& [km, seconds] : times) {
        splits.push_back({km, seconds});
    }
    return splits;
}

void ImportSplits::Take(const QTableWidgetItem& item)
{
    const bool half =
        item.row() == rowCount() - 1 && (Cell(item.row(), kKm).isEmpty() || Cell(item.row(), kTime).isEmpty());
    if (half && item.column() == kKm) {
        return; // The time follows.
    }
    const auto splits = half ? std::nullopt : Read();
    if (splits) {
        Q_EMIT Corrected(*splits);
        return;
    }
    Q_EMIT Refused(tr("«%1» non è un chilometro da 1 a 100 con il suo tempo: i Tempi Km restano come sono.")
                       .arg((Cell(item.row(), kKm) + QLatin1Char(' ') + Cell(item.row(), kTime)).trimmed()));
    // Not while the box in which it was typed is being closed.
    QMetaObject::invokeMethod(this, &ImportSplits::Fill, Qt::QueuedConnection);
}

} // namespace zelvia
