// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/ImportColumns.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

namespace zelvia
{

ImportColumns::ImportColumns() : grid_(new QGridLayout(this))
{
    setObjectName(QStringLiteral("columns"));
    grid_->setContentsMargins({});
    auto* caption = new QLabel(tr("Nella tabella ci sono colonne che non si conoscono. Che cosa contengono?"));
    caption->setWordWrap(true);
    grid_->addWidget(caption, 0, 0, 1, -1);
    hide();
}

void ImportColumns::Ask(const std::vector<std::string>& heads)
{
    constexpr int perLine = 3;
    for (const std::string& head : heads) {
        if (boxes_.contains(head)) {
            continue;
        }
        const QString name = QString::fromStdString(head);
        auto* box = new QComboBox;
        box->setObjectName(QStringLiteral("column ") + name);
        box->setAccessibleName(tr("Colonna %1").arg(name));
        box->addItem(tr("non leggere"));
        for (const DayColumnRow& row : DayColumns()) {
            box->addItem(QString::fromUtf8(row.label.data(), static_cast<qsizetype>(row.label.size())),
                         static_cast<int>(row.column));
        }
        auto* caption = new QLabel(QStringLiteral("«%1»:").arg(name));
        caption->setTextFormat(Qt::PlainText);
        caption->setBuddy(box);
        const int place = static_cast<int>(boxes_.size());
        grid_->addWidget(caption, 1 + place / perLine, place % perLine * 2);
        grid_->addWidget(box, 1 + place / perLine, place % perLine * 2 + 1);
        boxes_[head] = box;
        connect(box, &QComboBox::activated, this, &ImportColumns::Answered);
    }
    setVisible(!boxes_.empty());
}

void ImportColumns::Clear()
{
    for (const auto& [head, box] : boxes_) {
        delete grid_->itemAt(grid_->indexOf(box) - 1)->widget();
        delete box;
    }
    boxes_.clear();
    hide();
}

std::map<std::string, DayColumn> ImportColumns::Columns() const
{
    std::map<std::string, DayColumn> columns;
    for (const auto& [head, box] : boxes_) {
        if (box->currentIndex() > 0) {
            columns[head] = static_cast<DayColumn>(box->currentData().toInt());
        }
    }
    return columns;
}

} // namespace zelvia
