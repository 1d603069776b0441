// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "monkey/Invariants.h"

#include "diary/CalendarModel.h"
#include "diary/Module1.h"
#include "diary/RouteModel.h"
#include "diary/TableModel.h"
#include "monkey/PageImage.h"
#include "support/Bytes.h"
#include "support/Days.h"
#include "toolkit/Events.h"
#include "toolkit/FocusController.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QMenuBar>

namespace zelvia::monkey
{
namespace
{

using namespace Module1;

constexpr int kDays = 366;
constexpr long kOtherDaysEvery = 20;
constexpr long kReadAllEvery = 500;
constexpr int kMostWindows = 40;

} // namespace

Invariants::Invariants(Desk& desk, Boxes& boxes) : desk_(desk), boxes_(boxes), files_(desk.folder)
{
    boxes_.Meanwhile = [this] { meanwhile_ += files_.Look(desk_.Page()); };
    desk_.Made = [this](frmMain& page) { WatchSteps(page); };
}

/// Puts a look before and after each step of the date, by whatever way it comes.
void Invariants::WatchSteps(frmMain& page)
{
    for (UpDown* spin : {page.upGiorno, page.upMese}) {
        for (std::function<void()>* click : {&spin->UpClick, &spin->DownClick}) {
            *click = [this, &page, step = *click] { Step(page, step); };
        }
    }
}

/// A step of the date takes the page into the record of its day and shows the next one.
void Invariants::Step(frmMain& page, const std::function<void()>& step)
{
    const i16 slot = GiornoCorrente;
    const RecordGiorno committed = CommittedFrom(page, Giorni[slot]);
    const bool whole = page.lstListaKM->ListCount() <= decltype(committed.ListaKm)::kLast + 1;
    step();
    const auto note = [this](const char* what, const QString& wrong) {
        meanwhile_ += wrong.isEmpty() ? wrong : QLatin1String(what) + wrong;
    };
    const RecordGiorno& shown = Giorni[GiornoCorrente];
    if (whole) {
        note("the day that was left: ", DayDifference(Giorni[slot], committed));
    }
    note("the day that is shown: ", DayDifference(CommittedFrom(page, shown), Visited(shown, DataCorrente)));
    note("the counters: ", CounterFault(page));
}

QString Invariants::Check(long number)
{
    for (const QString& wrong : {CheckAtRest(), CheckMemory(), CheckFiles(), CheckDays(number)}) {
        if (!wrong.isEmpty()) {
            return wrong;
        }
    }
    return number % kReadAllEvery == 0 ? files_.ReadAll() : QString();
}

QString Invariants::CheckAtRest() const
{
    if (Routine::Running()) {
        return QStringLiteral("a routine has not ended");
    }
    if (QApplication::overrideCursor() != nullptr) {
        return QStringLiteral("the screen keeps its hourglass");
    }
    const frmMain* page = desk_.Page();
    if (page != nullptr && page->cursor().shape() != Qt::ArrowCursor) {
        return QStringLiteral("the page keeps its hourglass");
    }
    if (QApplication::topLevelWidgets().size() > kMostWindows) {
        return QStringLiteral("windows are not released: %1").arg(QApplication::topLevelWidgets().size());
    }
    const Control* focused = FocusController::Instance().Current();
    if (focused != nullptr && focused->Widget().window()->isVisible() && !focused->Widget().isVisible()) {
        return QStringLiteral("the focus lies in the hidden ") + focused->Widget().objectName();
    }
    // The control with the keyboard focus has had its report.
    QWidget* keyboard = QApplication::focusWidget();
    if (Form* form = Form::Of(keyboard); form != nullptr && form->isVisible()) {
        const Control* control = ControlOf(keyboard);
        const Control* holder = control != nullptr ? control : &form->FocusSink();
        if (qobject_cast<QMenuBar*>(keyboard) == nullptr && holder != focused) {
            return QStringLiteral("%1 of %2 has the keyboard, the focus was told to ")
                       .arg(holder->Widget().objectName(), form->objectName()) +
                   (focused == nullptr ? QStringLiteral("none") : focused->Widget().objectName());
        }
    }
    return page != nullptr ? PageFault(*page) : QString();
}

/// Whatever is read, typed, counted or walked: numbers stay inside the widths of their boxes.
QString Invariants::CheckMemory() const
{
    if (desk_.Page() != nullptr && (GiornoCorrente < 1 || GiornoCorrente > kDays)) {
        return QStringLiteral("day %1").arg(GiornoCorrente.value());
    }
    if (FileModificato < 0 || FileModificato > 1 || IndiceTabella < 0 || IndiceTabella > 32) {
        return QStringLiteral("flags %1 %2").arg(FileModificato.value()).arg(IndiceTabella.value());
    }
    for (int row = 1; row <= 100; ++row) {
        if (NumeroGara[row] != row || GiornoGara[row] > 99 || MeseGara[row] > 99 || AnnoGara[row] > 9999) {
            return QStringLiteral("race %1: %2-%3-%4")
                .arg(NumeroGara[row].value())
                .arg(GiornoGara[row].value())
                .arg(MeseGara[row].value())
                .arg(AnnoGara[row].value());
        }
    }
    for (int row = 0; row <= 31; ++row) {
        if (row > 0 && TabGiorno[row] != row && TabGiorno[row] != 0) {
            return QStringLiteral("row %1 of the table has the number %2").arg(row).arg(TabGiorno[row].value());
        }
        if (row == 0 && (TabKm[0] != 0 || !TabAndatura[0].empty())) {
            return QStringLiteral("row 0 of the table is not empty");
        }
    }
    if (!NomiPercorso[0].empty() || DistanzePercorso[0] < 0) {
        return QStringLiteral("place 0 of the routes has a name");
    }
    return {};
}

bool Invariants::MayWrite(const QString& file) const
{
    const auto any = [this](std::initializer_list<const char*> commands) {
        return std::any_of(commands.begin(), commands.end(),
                           [this](const char* command) { return desk_.Carried(command); });
    };
    const bool replaced = Replaced();
    const bool saved = any({"frmMain.mnuFileSave", "frmMain.mnuFileSaveAs"});
    if (file.startsWith(QLatin1String("ZelviaFile/"))) {
        return saved || any({"frmMain.mnuFileOpen", "frmMain.mnuFileNuovo"});
    }
    if (file.endsWith(QLatin1String(".tab"), Qt::CaseInsensitive)) {
        return any({"frmAllenamento.cmdSalva", "frmAllenamento.cmdAttiva", "frmTabAllenamenti.cmdCancellaTab"});
    }
    if (file.endsWith(QLatin1String("/nometab"))) {
        // A table that was walked to its end is switched off whenever the date or the table is looked at.
        return true;
    }
    if (file.endsWith(QLatin1String("/CalendarioGare")) && file.count(QLatin1Char('/')) >= 1) {
        // The calendar's window saves with its button and on closing, by whatever way.
        return true;
    }
    return file.count(QLatin1Char('/')) >= 1 && (saved || replaced);
}

QString Invariants::CheckFiles()
{
    meanwhile_ += files_.Look(desk_.Page());
    for (const QString& file : files_.Changed()) {
        if (meanwhile_.isEmpty() && !MayWrite(file)) {
            meanwhile_ = QStringLiteral("%1 changed without a command that writes it").arg(file);
        }
    }
    files_.Forget();
    return std::exchange(meanwhile_, {});
}

bool Invariants::Replaced() const
{
    return desk_.Carried("start") || desk_.Carried("frmMain.mnuFileOpen") || desk_.Carried("frmMain.mnuFileNuovo");
}

void Invariants::NoteDay()
{
    if (desk_.Page() != nullptr && !worked_.empty()) {
        worked_[static_cast<std::size_t>(GiornoCorrente.value())] = true;
    }
}

QString Invariants::CheckDays(long number)
{
    const frmMain* page = desk_.Page();
    if (page == nullptr) {
        return {};
    }
    if (Replaced() || days_.empty()) {
        return CheckReplaced();
    }
    NoteDay();
    const QString wrong = CheckCommitted();
    return wrong.isEmpty() && number % kOtherDaysEvery == 0 ? CheckOtherDays() : wrong;
}

/// A diary has been opened, made or kept: what it then holds is where the comparison begins again.
QString Invariants::CheckReplaced()
{
    const frmMain& page = *desk_.Page();
    days_ = test::AllDays();
    worked_.assign(days_.size(), false);
    worked_[static_cast<std::size_t>(GiornoCorrente.value())] = true;
    const bool read = desk_.Carried("start") || boxes_.Chosen(QStringLiteral("Apri"));
    return read && desk_.Commands().size() == 1 ? files_.DiaryDifference(page.NomeFile) : QString();
}

/// A command that saves or counts has taken the page into the record of its day.
QString Invariants::CheckCommitted() const
{
    static constexpr const char* committing[] = {
        "frmMain.mnuFileSave",  "frmMain.mnuFileSaveAs", "frmMain.mnuMedie",      "frmMain.mnuPercorso",
        "frmMain.mnuLunghezza", "frmMain.mnuKm",         "frmMain.mnuAndatura",   "frmMain.mnuFondo",
        "frmMain.mnuTipo",      "frmMain.mnuStagione",   "frmMain.mnuMeteo",      "frmMain.mnuTemperatura",
        "frmMain.mnuCorridori", "frmMain.mnuPeso",       "frmMain.mnuRipetizioni"};
    const frmMain& page = *desk_.Page();
    const RecordGiorno& day = Giorni[GiornoCorrente];
    const bool due = desk_.Commands().size() == 1 && page.lstListaKM->ListCount() <= decltype(day.ListaKm)::kLast + 1 &&
                     std::any_of(std::begin(committing), std::end(committing),
                                 [this](const char* command) { return desk_.Carried(command); });
    const QString lost = due ? DayDifference(day, CommittedFrom(page, day)) : QString();
    return lost.isEmpty() ? lost : QStringLiteral("the day that was saved or counted: ") + lost;
}

/// Days that were not on the page are as they were, but for what showing and leaving them makes of them.
QString Invariants::CheckOtherDays()
{
    const CalendarDate newYear(DataCorrente.Year().value(), 1, 1);
    for (int slot = 0; slot <= kDays; ++slot) {
        const auto at = static_cast<std::size_t>(slot);
        if (worked_[at] || Giorni[slot] == days_[at]) {
            continue;
        }
        const RecordGiorno visited = Visited(days_[at], newYear.PlusDays(slot - 1));
        const QString difference = DayDifference(Giorni[slot], visited);
        if (!difference.isEmpty()) {
            return QStringLiteral("day %1, which was not worked on: ").arg(slot) + difference;
        }
    }
    days_ = test::AllDays();
    worked_.assign(days_.size(), false);
    worked_[static_cast<std::size_t>(GiornoCorrente.value())] = true;
    return {};
}

QByteArray Invariants::Digest() const
{
    QCryptographicHash hash(QCryptographicHash::Md5);
    for (const QWidget* window : desk_.Windows()) {
        hash.addData(window->objectName().toUtf8());
        for (const QWidget* control : window->findChildren<QWidget*>()) {
            if (dynamic_cast<const Control*>(control) == nullptr || !control->isVisible()) {
                continue;
            }
            hash.addData(control->objectName().toUtf8());
            hash.addData(control->property("text").toString().toUtf8());
            hash.addData(control->property("value").toString().toUtf8());
        }
    }
    const Control* focused = FocusController::Instance().Current();
    return hash.result().toHex().left(12) + ' ' +
           (focused == nullptr ? QByteArray("none") : focused->Widget().objectName().toUtf8());
}

} // namespace zelvia::monkey
