// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/ImportTable.h"

#include "core/Conversions.h"
#include "toolkit/PagePalette.h"
#include "toolkit/QtText.h"
#include "tools/exchange/CellTexts.h"
#include "tools/strumenti/ImportTexts.h"

#include <QColor>
#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>
#include <array>
#include <filesystem>
#include <iterator>

namespace zelvia
{
namespace
{

struct ColumnRow {
    const char* heading;
    int width;
    bool right = false;
};

/// In the order of the columns.
constexpr std::array<ColumnRow, ImportModel::Columns> kColumns = {
    {{QT_TRANSLATE_NOOP("zelvia::ImportModel", "Scrivi"), 56},
     {QT_TRANSLATE_NOOP("zelvia::ImportModel", "Giorno"), 92},
     {QT_TRANSLATE_NOOP("zelvia::ImportModel", "Inizio"), 74, true},
     {QT_TRANSLATE_NOOP("zelvia::ImportModel", "Fine"), 74, true},
     {QT_TRANSLATE_NOOP("zelvia::ImportModel", "Km"), 66, true},
     {QT_TRANSLATE_NOOP("zelvia::ImportModel", "Tempo"), 70, true},
     {QT_TRANSLATE_NOOP("zelvia::ImportModel", "Tempi Km"), 78, true},
     {QT_TRANSLATE_NOOP("zelvia::ImportModel", "Percorso"), 130},
     {QT_TRANSLATE_NOOP("zelvia::ImportModel", "Esito"), 122},
     {QT_TRANSLATE_NOOP("zelvia::ImportModel", "Nel diario"), 190},
     {QT_TRANSLATE_NOOP("zelvia::ImportModel", "Avvisi"), 260},
     {QT_TRANSLATE_NOOP("zelvia::ImportModel", "File"), 180}}};

QColor InkOf(Candidate::Status status)
{
    switch (status) {
    case Candidate::Status::New: return Ink::Pen;
    case Candidate::Status::Other:
    case Candidate::Status::Bad: return Ink::Accent;
    default: return Ink::Faded;
    }
}

QString FromNative(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

QString TimeOf(const Candidate& candidate)
{
    const RecordGiorno& day = candidate.result;
    const int taken = EndOf(day) > StartOf(day) ? EndOf(day) - StartOf(day) : candidate.proposal.elapsed;
    return taken > 0 ? FromNative(ClockText(taken)) : QString();
}

QString CountOfSplits(const RecordGiorno& day)
{
    const auto count =
        std::count_if(day.ListaKm.begin(), day.ListaKm.end(), [](const zelvia::Text& line) { return !line.empty(); });
    return count > 0 ? QString::number(count) : QString();
}

QString FileText(const Candidate& candidate)
{
    const QString name = FromNative(std::filesystem::path(candidate.file).filename().string());
    return candidate.session > 1 || candidate.incoming ? ImportModel::tr("%1, n. %2").arg(name).arg(candidate.session)
                                                       : name;
}

QString RemarksText(const Candidate& candidate)
{
    QStringList remarks;
    for (const std::string& remark : RemarksOn(candidate)) {
        remarks << FromNative(remark);
    }
    return remarks.join(QStringLiteral("; "));
}

} // namespace

void ImportModel::Append(std::vector<Candidate>&& rows)
{
    if (rows.empty()) {
        return;
    }
    beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(rows.size()) - 1);
    rows_.insert(rows_.end(), std::make_move_iterator(rows.begin()), std::make_move_iterator(rows.end()));
    endInsertRows();
}

void ImportModel::Show(std::vector<Candidate>&& rows, bool compared)
{
    rows_ = std::move(rows);
    Tell(compared);
}

void ImportModel::Tell(bool compared)
{
    compared_ = compared;
    if (!rows_.empty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, Columns - 1));
    }
}

void ImportModel::DropTables()
{
    beginResetModel();
    std::erase_if(rows_, [](const Candidate& candidate) { return IsTable(candidate.file); });
    endResetModel();
}

void ImportModel::Clear()
{
    beginResetModel();
    rows_.clear();
    endResetModel();
}

int ImportModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ImportModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Columns;
}

QString ImportModel::Text(const Candidate& candidate, int column) const
{
    const bool told = column >= Remarks || column == Status;
    if (!told && (IsUnreadable(candidate) || (column == Present && !compared_))) {
        return {};
    }
    const RecordGiorno& day = candidate.result;
    switch (column) {
    case Day: return FromNative(PlainText(candidate.date));
    case Start: return EndOf(day) > 0 ? FromNative(ClockText(StartOf(day))) : QString();
    case End: return EndOf(day) > 0 ? FromNative(ClockText(EndOf(day))) : QString();
    case Km: return FromNative(DistanceText(MetresOf(day)));
    case Time: return TimeOf(candidate);
    case Splits: return CountOfSplits(day);
    case Route: return ToQString(day.Percorso);
    case Status:
        return compared_ || IsUnreadable(candidate) ? FromNative(StatusText(candidate.status)) : tr("da confrontare");
    case Present: return FromNative(candidate.present);
    case Remarks: return RemarksText(candidate);
    case File: return FileText(candidate);
    default: return {};
    }
}

QVariant ImportModel::Look(const Candidate& candidate, int column, int role) const
{
    switch (role) {
    case Qt::TextAlignmentRole:
        return QVariant(kColumns[static_cast<std::size_t>(column)].right ? Qt::AlignRight | Qt::AlignVCenter
                                                                         : Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        if (column == Status) {
            return compared_ || IsUnreadable(candidate) ? InkOf(candidate.status) : Ink::Faded;
        }
        return {};
    case Qt::CheckStateRole:
        if (column == Written && !IsUnreadable(candidate)) {
            return candidate.written ? Qt::Checked : Qt::Unchecked;
        }
        return {};
    default: return {};
    }
}

QVariant ImportModel::data(const QModelIndex& index, int role) const
{
    const Candidate& candidate = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole: return Text(candidate, index.column());
    case Qt::ToolTipRole: return index.column() == File ? FromNative(candidate.file) : Text(candidate, index.column());
    case Qt::AccessibleTextRole:
        if (index.column() == Written) {
            return candidate.written ? tr("da scrivere") : tr("da non scrivere");
        }
        return Text(candidate, index.column());
    default: return Look(candidate, index.column(), role);
    }
}

bool ImportModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != Written) {
        return false;
    }
    Q_EMIT Ticked(index.row(), value.toInt() == Qt::Checked);
    return true;
}

QVariant ImportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    }
    const ColumnRow& column = kColumns[static_cast<std::size_t>(section)];
    switch (role) {
    case Qt::DisplayRole: return tr(column.heading);
    case Qt::TextAlignmentRole:
        return QVariant(column.right ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignVCenter);
    default: return {};
    }
}

Qt::ItemFlags ImportModel::flags(const QModelIndex& index) const
{
    const bool ticks =
        index.column() == Written && compared_ && !IsUnreadable(rows_[static_cast<std::size_t>(index.row())]);
    return QAbstractTableModel::flags(index) | (ticks ? Qt::ItemIsUserCheckable : Qt::NoItemFlags);
}

ImportTable::ImportTable(ImportModel& model)
{
    constexpr int room = 8;
    setObjectName(QStringLiteral("activities"));
    setAccessibleName(tr("Attività trovate"));
    setModel(&model);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + room);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    for (int column = 0; column < ImportModel::Columns; ++column) {
        setColumnWidth(column, kColumns[static_cast<std::size_t>(column)].width);
    }
    connect(&model, &ImportModel::Ticked, this, [this](int row, bool wanted) { Q_EMIT Ticked({row}, wanted); });
    connect(&model, &QAbstractItemModel::modelReset, this, [this] { Q_EMIT RowChosen(Current()); });
}

void ImportTable::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space || event->modifiers() != Qt::NoModifier || Current() < 0) {
        QTableView::keyPressEvent(event);
        return;
    }
    std::vector<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows()) {
        rows.push_back(index.row());
    }
    const bool wanted = !static_cast<ImportModel*>(model())->Row(Current()).written;
    Q_EMIT Ticked(rows, wanted);
}

void ImportTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (current.row() != previous.row()) {
        Q_EMIT RowChosen(current.row());
    }
}

} // namespace zelvia
