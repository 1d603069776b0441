// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/PageTitle.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/Module1.h"
#include "toolkit/Accessible.h"
#include "toolkit/QtText.h"
#include "windows/page/DayOnPage.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{

using namespace Module1;

namespace
{

const QString kMark = QStringLiteral("[*]");

QString TitleOf(const Text& diary, CalendarDate day)
{
    QString name = ToQString(diary);
    // Doubled, it means itself.
    name.replace(kMark, kMark + kMark);
    QStringList parts{QStringLiteral("Zelvia"), name, ToQString(Format(day, "d mmmm yyyy"))};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" \u2013 ")) + kMark;
}

} // namespace

void PageTitle::Update()
{
    const Text diary = page_.lblNomeFile->Caption();
    const bool modified = Modified();
    const bool other = diary != diary_ || day_ != DataCorrente;
    if (!other && modified == page_.isWindowModified()) {
        return;
    }
    if (other) {
        page_.setWindowTitle(TitleOf(diary, DataCorrente));
        diary_ = diary;
        day_ = DataCorrente;
    }
    page_.setWindowModified(modified);
    TellTitle(page_);
}

/// True when the commands that ask before they leave the diary would ask.
bool PageTitle::Modified() const
{
    if (FileModificato == 1) {
        return true;
    }
    try {
        const RecordGiorno& day = Giorni[GiornoCorrente];
        const DayOnPage shown(page_);
        return shown.Differs(day) || shown.SplitsDiffer(day);
    } catch (const ErroreRunTime&) {
        // A day that can't be compared is reported by the command that commits it.
        return page_.isWindowModified();
    }
}

} // namespace zelvia
