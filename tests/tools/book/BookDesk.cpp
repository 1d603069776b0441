// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/book/BookDesk.h"

#include "support/DiaryBytes.h"
#include "tools/book/BookContent.h"
#include "tools/strumenti/Context.h"

#include <algorithm>

namespace zelvia::test
{

BookDesk::BookDesk()
{
    DiaryBytes diary = DiaryBytes::Blank(2023);
    diary.SetLine(60, DiaryBytes::Stamp, "#2019-03-01#");
    diary.SetLine(60, DiaryBytes::Route, "\"Citt\xE0 alta\"");
    diary.SetLine(60, DiaryBytes::Km, "10");
    diary.SetLine(60, DiaryBytes::Metres, "45");
    diary.SetLine(60, DiaryBytes::Kind, "\"Allenamento\"");
    diary.SetLine(60, 10, "9");
    diary.SetLine(60, 13, "10");
    diary.SetLine(60, DiaryBytes::Time, "\"1:00:00\"");
    diary.SetLine(60, DiaryBytes::Pace, "\"5:58\"");
    diary.SetLine(60, DiaryBytes::Splits, "\"01      00:06:00\"");
    diary.SetLine(60, DiaryBytes::Splits + 1, "\"arrivo\"");
    diary.SetLine(60, DiaryBytes::Weight, "70");
    diary.SetLine(60, 123, "5");
    diary.SetLine(60, 124, "1000");
    diary.SetLine(60, 125, "4");
    diary.SetLine(60, 126, "30");
    diary.SetLine(61, DiaryBytes::Route, "\"citt\xE0 ALTA\"");
    diary.SetLine(61, DiaryBytes::Km, "10");
    diary.SetLine(61, DiaryBytes::Metres, "45");
    diary.SetLine(61, DiaryBytes::Kind, "\"Gara\"");
    diary.SetLine(61, DiaryBytes::Time, "\"0:55:00\"");
    diary.SetLine(61, DiaryBytes::Pace, "\"5:28\"");
    diary.Visit(90, QDate(2023, 3, 31));
    diary.SetLine(365, DiaryBytes::Notes + 2, "\"riposo <b> & 5 \x80\"");
    diary.SetLine(365, DiaryBytes::Notes + 4, "\"fine\"");
    diary.SetLine(366, DiaryBytes::Km, "99");
    Write("ZelviaFile/2023.zlv", diary.Bytes().toStdString());
}

Book BookDesk::Make(const std::string& diary) const
{
    SetProgramFolder(SystemPath(Native()));
    LoadDiary(Native(), diary);
    return MakeBook(diary, ReadAllDiaries(Native()));
}

void BookDesk::LayRun(const std::string& diary, int year, const QByteArray& km) const
{
    DiaryBytes bytes = DiaryBytes::Blank(year);
    bytes.SetLine(60, DiaryBytes::Km, km);
    bytes.SetLine(60, DiaryBytes::Kind, "\"Allenamento\"");
    Write("ZelviaFile/" + diary + ".zlv", bytes.Bytes().toStdString());
}

const BookChapter* ChapterOf(const Book& book, const std::string& id)
{
    const auto chapter =
        std::find_if(book.chapters.begin(), book.chapters.end(), [&](const BookChapter& one) { return one.id == id; });
    return chapter == book.chapters.end() ? nullptr : &*chapter;
}

std::vector<std::string> Joined(const std::vector<BookFact>& facts)
{
    std::vector<std::string> joined;
    for (const BookFact& fact : facts) {
        joined.push_back(fact.caption + "=" + fact.value);
    }
    return joined;
}

} // namespace zelvia::test
