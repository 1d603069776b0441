// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Tr.h"
#include "tools/desk/ActionPage.h"
#include "tools/desk/DeskPages.h"
#include "tools/desk/PathField.h"

#include <QCheckBox>
#include <QFormLayout>

namespace zelvia
{
namespace
{

constexpr const char* kToTake = Tools::Mark("Da prendere: %1. Restano da decidere: %2.");

/// What another computer has written, shown by whatever columns the action lists.
class MergePage : public ActionPage
{
    Q_OBJECT

public:
    explicit MergePage(Desk& desk)
        : ActionPage(
              desk, tr("Due computer"),
              tr("Unisce, giorno per giorno, ciò che due computer hanno scritto nello stesso diario: le copie in "
                 "conflitto che un programma di sincronizzazione lascia nella cartella, o un diario portato da fuori. "
                 "I giorni cambiati da una parte sola vengono presi; quelli cambiati da tutte e due si mostrano "
                 "campo per campo.")),
          table_(AddTable(tr("Giorni diversi"))),
          other_(new PathField(PathField::Kind::OpenFile, tr("Diario dell'altro computer"))),
          overwrite_(new QCheckBox(tr("&Prendere dall'altro anche i giorni cambiati da tutte e due le parti")))
    {
        overwrite_->setObjectName(QStringLiteral("overwrite"));
        other_->Edit().setPlaceholderText(tr("le copie in conflitto che sono nella cartella"));
        Choices().addRow(other_->MakeCaption(tr("&L'altro diario:")), other_);
        Choices().addRow(QString(), overwrite_);
        connect(other_, &PathField::Changed, this, &MergePage::Choose);
        connect(overwrite_, &QCheckBox::toggled, this, &MergePage::Choose);
    }

protected:
    std::vector<std::string> Words() const override
    {
        std::vector<std::string> words = {"unisci"};
        if (!other_->Path().empty()) {
            words.push_back(other_->Path().string());
        }
        if (overwrite_->isChecked()) {
            words.emplace_back("--sovrascrivi");
        }
        return words;
    }

    /// What is in the table is not said again.
    void Show(const ToolOutcome& outcome) override
    {
        table_.ShowRows(outcome.out);
        QStringList lines = outcome.told.split(QLatin1Char('\n'));
        if (outcome.status == kDone) {
            lines.removeIf([](const QString& line) {
                return line.startsWith(QLatin1Char(' ')) || line.endsWith(QLatin1Char(':'));
            });
        }
        Say(lines.join(QLatin1Char('\n')), outcome.status != kDone);
    }

    bool MayRun(const ToolOutcome& shown) const override
    {
        return shown.status == kDone && Says(shown, kToTake) && !Says(shown, kToTake, "0");
    }
    bool LooksAgain() const override { return true; }

private:
    OutcomeTable& table_;
    PathField* other_;
    QCheckBox* overwrite_;
};

} // namespace

DeskPage* MakeMergePage(Desk& desk)
{
    return new MergePage(desk);
}

} // namespace zelvia

#include "MergePage.moc"
