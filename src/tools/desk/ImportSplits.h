// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/strumenti/ImportSources.h"

#include <QTableWidget>

#include <optional>
#include <vector>

namespace zelvia
{

/// The splits of a day, to be changed one by one, beside those that the diary holds. The last row takes another one; a
/// time that is cleared takes its split away.
class ImportSplits : public QTableWidget
{
    Q_OBJECT

public:
    ImportSplits();

    void Show(const RecordGiorno& day, const RecordGiorno& held);

    /// As high as the fields beside it, or less.
    QSize sizeHint() const override { return {212, 130}; }

Q_SIGNALS:
    void Corrected(const std::vector<KilometreTime>& splits);
    /// What was typed is none.
    void Refused(const QString& why);

private:
    void Fill();
    void Take(const QTableWidgetItem& item);
    std::optional<std::vector<KilometreTime>> Read() const;
    QString Cell(int row, int column) const;
    void AddRow(const QString& km, const QString& time, const QString& held);

    RecordGiorno day_;
    RecordGiorno held_;
    bool filling_ = false;
};

} // namespace zelvia
