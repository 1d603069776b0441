// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/Module1.h"
#include "faults/FaultyDisk.h"
#include "faults/SavedFiles.h"
#include "support/Days.h"
#include "support/MessageScript.h"
#include "support/TempFolder.h"
#include "support/TestProgram.h"

#include <QTest>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>

using namespace zelvia;
using namespace zelvia::test;

/// The files of the sample year cut at their bytes, with bytes gone wrong, with other line ends: a reader either takes
/// the whole or reports why not, and what it had read until then stays.
class DamagedFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void CutAtEveryByte_data() { AddFileRows(); }
    void CutAtEveryByte();
    void EveryByteGarbled_data();
    void EveryByteGarbled();
    void OtherLineEnds_data();
    void OtherLineEnds();
    void NothingButZeros_data() { AddFileRows(); }
    void NothingButZeros();

private:
    void ReadGood(const SavedFile& file, const std::string& whole) const;

    TempFolder folder_;
};

namespace
{

/// A file of its kind from the sample year.
std::string SampleOf(const SavedFile& file)
{
    const std::string name = file.name;
    if (name == "nomeload") {
        return "\"C:\\Zelvia\\ZelviaFile\\prova.zlv\"\r\n";
    }
    const std::string folder = name == "prova.zlv" ? "/ZelviaFile/" : "/prova/";
    return ReadWhole(ZELVIA_SOURCE_DIR "/share/demo" + folder + (name == "Base.tab" ? "Base 10 km.tab" : name));
}

std::vector<std::string> LinesIn(const std::string& bytes)
{
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < bytes.size();) {
        const auto end = bytes.find("\r\n", start);
        lines.push_back(bytes.substr(start, end - start));
        start = end + 2;
    }
    return lines;
}

/// True for each byte of a file that is not longer than `small`; of a longer one for those of its first values, of the
/// middle and of the last ones, and here and there between these.
bool IsTried(std::size_t at, std::size_t size, std::size_t small)
{
    const auto middle = size / 2;
    return size <= small || at < 60 || at + 30 > size || (at > middle && at < middle + 30) || at % (size / 8) == 0;
}

/// What a read over other values must come to.
struct Outcome {
    std::vector<std::string> lines;
    int error = 0;
};

/// The value in the first bytes of a line, as the line of the same value; none when it is cut too short.
std::optional<std::string> ValueOf(const std::string& line, const std::string& bytes)
{
    if (line.starts_with('"') || line.starts_with('#')) {
        return bytes == line ? std::optional(line) : std::nullopt;
    }
    return bytes == "-" ? std::nullopt : std::optional(bytes);
}

/// Of a file of these lines that ends at byte `cut`.
Outcome AfterCut(const std::vector<std::string>& filed, std::size_t cut, const std::vector<std::string>& before,
                 bool list)
{
    Outcome outcome;
    for (const std::string& line : filed) {
        const std::string bytes = line.substr(0, cut);
        cut -= std::min(cut, line.size() + 2);
        if (bytes.empty()) {
            outcome.error = list ? 0 : Errore::FineFile;
            break;
        }
        const auto value = ValueOf(line, bytes);
        if (!value) {
            outcome.error = line.starts_with('"') ? Errore::FineFile : Errore::TipoNonCorrispondente;
            break;
        }
        outcome.lines.push_back(*value);
    }
    if (!list) {
        const auto read = static_cast<std::ptrdiff_t>(outcome.lines.size());
        outcome.lines.insert(outcome.lines.end(), before.begin() + read, before.end());
    }
    return outcome;
}

/// The numbers that a load may report of bytes that have gone wrong.
bool IsDamage(const SavedFile& file, const Text& report)
{
    return std::ranges::any_of(
        std::initializer_list<int>{Errore::Overflow, Errore::TipoNonCorrispondente, Errore::FineFile},
        [&](int error) { return report == ReadReport(file, error); });
}

void PutByte(const std::string& path, std::size_t at, char byte)
{
    std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(static_cast<std::streamoff>(at));
    file.put(byte);
}

} // namespace

void DamagedFilesTest::init()
{
    Module1::CartellaDiario = folder_.Path();
}

void DamagedFilesTest::ReadGood(const SavedFile& file, const std::string& whole) const
{
    folder_.Write(file.name, whole);
    file.forget();
    const MessageScript none;
    file.read();
    QCOMPARE(Difference(Lines(file.lines()), whole), QByteArray());
}

void DamagedFilesTest::CutAtEveryByte()
{
    const SavedFile& file = FetchedFile();
    const std::string whole = SampleOf(file);
    const std::vector<std::string> filed = LinesIn(whole);
    file.forget();
    const std::vector<std::string> before = file.lines();
    const int descriptors = OpenDescriptors();
    folder_.Write(file.name, whole);
    for (std::size_t cut = whole.size(); cut-- > 0;) {
        constexpr std::size_t smallFile = 8192;
        if (!IsTried(cut, whole.size(), smallFile)) {
            continue;
        }
        std::filesystem::resize_file(folder_.Native(file.name), cut);
        file.forget();
        const Outcome expected = AfterCut(filed, cut, before, file.clearedWhenOpen);
        MessageScript boxes;
        if (expected.error != 0) {
            boxes.Expect(ReadReport(file, expected.error));
        }
        file.read();
        QVERIFY2(boxes.AllShown(), std::to_string(cut).c_str());
        QVERIFY2(file.lines() == expected.lines, std::to_string(cut).c_str());
    }
    QCOMPARE(OpenDescriptors(), descriptors);
    ReadGood(file, whole);
}

void DamagedFilesTest::EveryByteGarbled_data()
{
    QTest::addColumn<int>("file");
    QTest::addColumn<char>("garbage");
    for (std::size_t i = 0; i < SavedFiles().size(); ++i) {
        const SavedFile& file = SavedFiles()[i];
        constexpr std::size_t smallFile = 8192;
        for (const char c : {'\0', '"', ',', '\n', '#', '-', '9', '\xFF'}) {
            // The two long ones have tests of their own.
            if (SampleOf(file).size() <= smallFile) {
                QTest::addRow("%s: %02x", file.name, unsigned{static_cast<unsigned char>(c)})
                    << static_cast<int>(i) << c;
            }
        }
    }
}

/// The values ahead of the line that has gone wrong are read, and the file is read again when it is whole.
void DamagedFilesTest::EveryByteGarbled()
{
    QFETCH(char, garbage);
    const SavedFile& file = FetchedFile();
    const std::string whole = SampleOf(file);
    const std::vector<std::string> filed = LinesIn(whole);
    const int descriptors = OpenDescriptors();
    folder_.Write(file.name, whole);
    std::ptrdiff_t intact = 0;
    for (std::size_t at = 0; at < whole.size(); ++at) {
        intact += at > 0 && whole[at - 1] == '\n' ? 1 : 0;
        constexpr std::size_t smallFile = 1024;
        if (!IsTried(at, whole.size(), smallFile)) {
            continue;
        }
        PutByte(folder_.Native(file.name), at, garbage);
        file.forget();
        const MessageLog boxes;
        file.read();
        const std::string where = "byte " + std::to_string(at);
        QVERIFY2(boxes.texts.empty() || (boxes.texts.size() == 1 && IsDamage(file, boxes.texts.front())),
                 where.c_str());
        const std::vector<std::string> lines = file.lines();
        QVERIFY2(std::equal(filed.begin(), filed.begin() + intact, lines.begin(), lines.begin() + intact),
                 where.c_str());
        PutByte(folder_.Native(file.name), at, whole[at]);
    }
    QCOMPARE(OpenDescriptors(), descriptors);
    ReadGood(file, whole);
}

void DamagedFilesTest::OtherLineEnds_data()
{
    QTest::addColumn<int>("file");
    QTest::addColumn<QByteArray>("ahead");
    QTest::addColumn<QByteArray>("behind");
    QTest::addColumn<QByteArray>("last");
    const auto add = [](std::size_t file, const char* name, const char* ahead, const char* behind, const char* last) {
        QTest::addRow("%s: %s", SavedFiles()[file].name, name)
            << static_cast<int>(file) << QByteArray(ahead) << QByteArray(behind) << QByteArray(last);
    };
    for (std::size_t i = 0; i < SavedFiles().size(); ++i) {
        add(i, "LF", "", "\n", "\n");
        add(i, "CR", "", "\r", "\r");
        add(i, "no last line end", "", "\r\n", "");
        add(i, "no last LF", "", "\r\n", "\r");
        add(i, "blanks and tabs around", " \t", "\t \r\n", " ");
        add(i, "commas", "", ",", "");
    }
}

void DamagedFilesTest::OtherLineEnds()
{
    QFETCH(QByteArray, ahead);
    QFETCH(QByteArray, behind);
    QFETCH(QByteArray, last);
    const SavedFile& file = FetchedFile();
    const std::vector<std::string> filed = LinesIn(SampleOf(file));
    std::string bytes;
    for (std::size_t i = 0; i < filed.size(); ++i) {
        bytes += TextOf(ahead) + filed[i] + TextOf(i + 1 < filed.size() ? behind : last);
    }
    folder_.Write(file.name, bytes);
    file.forget();
    const MessageScript none;
    file.read();
    QCOMPARE(Difference(Lines(file.lines()), Lines(filed)), QByteArray());
}

/// What a system crash can leave of a file: its length, and zeros.
void DamagedFilesTest::NothingButZeros()
{
    const SavedFile& file = FetchedFile();
    const std::string whole = SampleOf(file);
    const std::string zeros(whole.size(), '\0');
    folder_.Write(file.name, zeros);
    file.forget();
    std::vector<std::string> expected = file.lines();
    const bool text = whole.starts_with('"');
    if (text) {
        expected.front() = LineOf(TextView(zeros));
        expected.resize(file.clearedWhenOpen ? 1 : expected.size());
    }
    MessageScript boxes;
    if (!text) {
        boxes.Expect(ReadReport(file, Errore::TipoNonCorrispondente));
    } else if (expected.size() > 1) {
        boxes.Expect(ReadReport(file, Errore::FineFile));
    }
    file.read();
    QVERIFY(boxes.AllShown());
    QVERIFY(file.lines() == expected);
    ReadGood(file, whole);
}

ZELVIA_TEST(DamagedFilesTest)
#include "DamagedFilesTest.moc"
