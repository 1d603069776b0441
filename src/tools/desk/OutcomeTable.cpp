// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/OutcomeTable.h"

#include <QDateTime>
#include <QHeaderView>
#include <QLocale>

#include <algorithm>
#include <array>

namespace zelvia
{
namespace
{

constexpr int kRowRole = Qt::UserRole;
constexpr int kGroupRole = Qt::UserRole + 1;

QString AsItIs(const QString& cell)
{
    return cell;
}

QString KilometresInWords(const QString& cell)
{
    constexpr int decimals = 3;
    return QLocale().toString(cell.toDouble(), 'f', decimals);
}

QString SizeInWords(const QString& cell)
{
    return QLocale().formattedDataSize(cell.toLongLong(), 1, QLocale::DataSizeTraditionalFormat);
}

QString MomentInWords(const QString& cell)
{
    const QDateTime moment = QDateTime::fromString(cell, Qt::ISODate);
    return moment.isValid() ? moment.toString(QStringLiteral("dd/MM/yyyy  HH:mm")) : cell;
}

QString CodeInWords(const QString& cell)
{
    static constexpr std::array<std::array<const char*, 2>, 13> codes = {
        {{"quote", QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "virgolette")},
         {"missing", QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "manca")},
         {"extra", QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "di troppo")},
         {"encoding", QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "caratteri")},
         {"line_end", QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "fine riga")},
         {"number", QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "numero")},
         {"range", QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "limiti")},
         {"duplicate", QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "doppione")},
         {"pointer", QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "rimando")},
         {"table", QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "tabella")},
         {"here", QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "qui")},
         {"there", QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "di là")},
         {"both", QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "qui e di là")}}};
    const auto* const code =
        std::find_if(codes.begin(), codes.end(), [&](const auto& row) { return cell == QLatin1String(row.front()); });
    return code == codes.end() ? cell : OutcomeTable::tr(code->back());
}

struct OutcomeColumn {
    QLatin1String name;
    const char* heading;
    QString (*words)(const QString& cell) = AsItIs;
    bool right = false;
};
constexpr std::array kOutcomeColumns = {
    OutcomeColumn{QLatin1String("file"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "File")},
    OutcomeColumn{QLatin1String("line"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Riga"), AsItIs, true},
    OutcomeColumn{QLatin1String("day"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Giorno"), DayInWords},
    OutcomeColumn{QLatin1String("date"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Giorno"), DayInWords},
    OutcomeColumn{QLatin1String("field"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Campo")},
    OutcomeColumn{QLatin1String("kind"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Difetto"), CodeInWords},
    OutcomeColumn{QLatin1String("text"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Che cosa non va")},
    OutcomeColumn{QLatin1String("diary"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Diario")},
    OutcomeColumn{QLatin1String("year"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Anno"), AsItIs, true},
    OutcomeColumn{QLatin1String("runs"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Uscite"), AsItIs, true},
    OutcomeColumn{QLatin1String("km"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Km"), KilometresInWords, true},
    OutcomeColumn{QLatin1String("races"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Gare"), AsItIs, true},
    OutcomeColumn{QLatin1String("before"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Prima")},
    OutcomeColumn{QLatin1String("after"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Dopo")},
    OutcomeColumn{QLatin1String("copy"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Nella copia")},
    OutcomeColumn{QLatin1String("now"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Adesso")},
    OutcomeColumn{QLatin1String("base"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Prima")},
    OutcomeColumn{QLatin1String("here"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Qui")},
    OutcomeColumn{QLatin1String("there"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Di là")},
    OutcomeColumn{QLatin1String("state"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Cambiato"), CodeInWords},
    OutcomeColumn{QLatin1String("number"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Copia"), AsItIs, true},
    OutcomeColumn{QLatin1String("time"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Quando"), MomentInWords},
    OutcomeColumn{QLatin1String("diaries"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Diari"), AsItIs, true},
    OutcomeColumn{QLatin1String("bytes"), QT_TRANSLATE_NOOP("zelvia::OutcomeTable", "Grandezza"), SizeInWords, true},
};

/// A column that nothing is known of is shown as it is.
const OutcomeColumn& RowOf(const QString& name)
{
    static constexpr OutcomeColumn unknown{QLatin1String(), ""};
    const auto* const row = std::find_if(kOutcomeColumns.begin(), kOutcomeColumns.end(),
                                         [&](const OutcomeColumn& one) { return name == one.name; });
    return row == kOutcomeColumns.end() ? unknown : *row;
}

QString HeadingOf(const QString& name)
{
    const OutcomeColumn& row = RowOf(name);
    return row.name.isEmpty() ? name : OutcomeTable::tr(row.heading);
}

} // namespace

QString DayInWords(const QString& iso)
{
    const QDate day = QDate::fromString(iso, Qt::ISODate);
    return day.isValid() ? QLocale().toString(day, QStringLiteral("ddd d MMM yyyy")) : iso;
}

OutcomeTable::OutcomeTable(const QString& accessibleName)
{
    setObjectName(QStringLiteral("table"));
    setAccessibleName(accessibleName);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(false);
    // Its room is what the page has left.
    constexpr int lowest = 110;
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    setMinimumHeight(lowest);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    connect(this, &QTreeWidget::currentItemChanged, this, [this] { filling_ ? void() : Chosen(); });
    connect(this, &QTreeWidget::itemChanged, this, [this] { filling_ ? void() : Chosen(); });
}

void OutcomeTable::Take(const QString& tsv)
{
    QStringList lines = tsv.split(QLatin1Char('\n'));
    columns_ = lines.takeFirst().split(QLatin1Char('\t'));
    rows_.clear();
    for (const QString& line : lines) {
        QStringList cells = line.split(QLatin1Char('\t'));
        if (cells.size() == columns_.size() && !line.isEmpty()) {
            rows_.push_back(std::move(cells));
        }
    }
    clear();
}

/// The cells of a row but that of the column `hidden`.
void OutcomeTable::Fill(QTreeWidgetItem& item, int row, int hidden)
{
    int place = 0;
    for (int column = 0; column < columns_.size(); ++column) {
        if (column == hidden) {
            continue;
        }
        const OutcomeColumn& form = RowOf(columns_[column]);
        const QString& cell = rows_[static_cast<std::size_t>(row)][column];
        const Qt::Alignment side = form.right ? Qt::AlignRight : Qt::AlignLeft;
        item.setText(place, cell.isEmpty() ? cell : form.words(cell));
        item.setToolTip(place, item.text(place));
        item.setTextAlignment(place, Qt::AlignTop | side);
        headerItem()->setTextAlignment(place, Qt::AlignVCenter | side);
        ++place;
    }
    item.setData(0, kRowRole, row);
}

void OutcomeTable::ShowRows(const QString& tsv)
{
    filling_ = true;
    Take(tsv);
    setRootIsDecorated(false);
    QStringList headings;
    for (const QString& column : columns_) {
        headings << HeadingOf(column);
    }
    setHeaderLabels(headings);
    for (int row = 0; row < RowCount(); ++row) {
        Fill(*new QTreeWidgetItem(this), row, -1);
    }
    FitColumns();
    filling_ = false;
    Q_EMIT Chosen();
}

void OutcomeTable::ShowGroups(const QString& tsv, const QString& group, bool ticked)
{
    filling_ = true;
    Take(tsv);
    setRootIsDecorated(true);
    const int hidden = static_cast<int>(columns_.indexOf(group));
    QStringList headings;
    for (int column = 0; column < columns_.size(); ++column) {
        if (column != hidden) {
            headings << HeadingOf(columns_[column]);
        }
    }
    setHeaderLabels(headings);
    QTreeWidgetItem* head = nullptr;
    for (int row = 0; row < RowCount(); ++row) {
        const QString cell = Cell(row, group);
        if (cell.isEmpty()) {
            Fill(*new QTreeWidgetItem(this), row, hidden);
            continue;
        }
        if (head == nullptr || head->data(0, kGroupRole) != cell) {
            head = new QTreeWidgetItem(this, {DayInWords(cell)});
            head->setData(0, kGroupRole, cell);
            head->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
            head->setCheckState(0, ticked ? Qt::Checked : Qt::Unchecked);
            head->setFirstColumnSpanned(true);
        }
        Fill(*new QTreeWidgetItem(head), row, hidden);
    }
    expandAll();
    FitColumns();
    filling_ = false;
    Q_EMIT Chosen();
}

void OutcomeTable::FitColumns()
{
    constexpr int widest = 260;
    constexpr int room = 18;
    // A column of numbers has its width; the last one of words takes the room that is left.
    header()->setStretchLastSection(!(headerItem()->textAlignment(columnCount() - 1) & Qt::AlignRight));
    for (int column = 0; column < columnCount() - (header()->stretchLastSection() ? 1 : 0); ++column) {
        resizeColumnToContents(column);
        setColumnWidth(column, std::min(columnWidth(column) + room, widest));
    }
    if (topLevelItemCount() > 0) {
        setCurrentItem(topLevelItem(0));
    }
}

QString OutcomeTable::Cell(int row, const QString& column) const
{
    const auto index = columns_.indexOf(column);
    return row >= 0 && row < RowCount() && index >= 0 ? rows_[static_cast<std::size_t>(row)][index] : QString();
}

QString OutcomeTable::ChosenCell(const QString& column) const
{
    const QTreeWidgetItem* item = currentItem();
    return item != nullptr && item->data(0, kRowRole).isValid() ? Cell(item->data(0, kRowRole).toInt(), column)
                                                                : QString();
}

QStringList OutcomeTable::Ticked() const
{
    QStringList groups;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        if (topLevelItem(i)->checkState(0) == Qt::Checked) {
            groups << topLevelItem(i)->data(0, kGroupRole).toString();
        }
    }
    return groups;
}

} // namespace zelvia
