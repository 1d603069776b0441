// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/CommonDialog.h"

#include "core/Files.h"
#include "core/RunTimeError.h"
#include "support/BoxScript.h"
#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/SampleForm.h"
#include "toolkit/WindowPlaces.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTimer>

using namespace zelvia;
using namespace zelvia::test;

namespace
{

/// The question before a file is replaced.
ExpectedBox Question(const QString& name, QMessageBox::StandardButton press)
{
    return {QFileDialog::tr("%1 already exists.\nDo you want to replace it?").arg(name), QMessageBox::Warning,
            QMessageBox::Yes | QMessageBox::No, press, QStringLiteral("Apri")};
}

} // namespace

class CommonDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void ItOpensAsItIsSet();
    void TheFilterIsShownAsGivenAndMindsNoCase();
    void TheChosenPathComesInBackslashForm();
    void ANameGetsTheSuffixOfTheFilter_data();
    void ANameGetsTheSuffixOfTheFilter();
    void AFolderIsGoneInto();
    void OpenFindsANameWithoutSuffix_data();
    void OpenFindsANameWithoutSuffix();
    void OpenTellsOfAMissingFile();
    void AnExistingFileIsAskedForInItalian();
    void AFileInOtherLettersIsAskedFor();
    void TwoFilesInOtherLettersAreLeftAlone();
    void CancelRaisesItsErrorWhenAskedTo();
    void CancelKeepsTheNameAndSaysNothingOtherwise();
    void ANameThatCannotBeKeptIsRefused_data();
    void ANameThatCannotBeKeptIsRefused();
    void WhoAsksMayRefuse();
    void TheFolderInOtherLettersIsTheSame();
    void TheNameSurvivesFromOneToTheNext();
    void ADialogIsNoLostFocus();
    void ItFitsASmallScreen();
    void AHandlerTakesItsPlace();

private:
    /// Has `work` done in the next file dialog.
    void WhenOpen(DialogWork work);
    void MakeFile(const QString& name) const;
    static void Enter(QFileDialog& dialog, const QString& name);
    static int ErrorOf(const std::function<void()>& action);

    std::unique_ptr<SampleForm> form_;
    std::unique_ptr<QTemporaryDir> folder_;
    std::unique_ptr<BoxScript> script_;
    CommonDialog settings_;
    int opened_ = 0;
};

void CommonDialogTest::init()
{
    form_ = std::make_unique<SampleForm>();
    form_->Open();
    form_->Start(*form_->txtUno);
    script_ = std::make_unique<BoxScript>();
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(folder_->isValid());
    settings_ = {};
    settings_.InitDir = SystemPath(folder_->path().toStdString());
    settings_.Filter = "File Zelvia (*. zlv)|*.zlv|";
    settings_.DialogTitle = "Apri";
    opened_ = 0;
}

void CommonDialogTest::cleanup()
{
    SetFileDialogHandler({});
    form_.reset();
    VERIFY_SCRIPT(*script_);
}

void CommonDialogTest::WhenOpen(DialogWork work)
{
    script_->Expect([this, work = std::move(work)](QFileDialog& dialog) {
        ++opened_;
        work(dialog);
    });
}

void CommonDialogTest::MakeFile(const QString& name) const
{
    QFile file(folder_->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
}

void CommonDialogTest::Enter(QFileDialog& dialog, const QString& name)
{
    auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    QVERIFY(edit != nullptr);
    QTRY_VERIFY(dialog.isActiveWindow());
    edit->setFocus();
    edit->setText(name);
    hand::Key(Qt::Key_Return);
}

int CommonDialogTest::ErrorOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const ErroreRunTime& error) {
        return error.Number();
    }
    return 0;
}

void CommonDialogTest::ItOpensAsItIsSet()
{
    settings_.DialogTitle = "Apri <b>diario</b> \xE8";
    WhenOpen([this](QFileDialog& dialog) {
        QVERIFY(dialog.testOption(QFileDialog::DontUseNativeDialog));
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Apri <b>diario</b> \u00E8"));
        QCOMPARE(dialog.directory().absolutePath(), QDir(folder_->path()).absolutePath());
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
        QCOMPARE(dialog.windowModality() != Qt::NonModal, true);
    });
    settings_.ShowOpen();
    QCOMPARE(opened_, 1);
    WhenOpen([](QFileDialog& dialog) { QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave); });
    settings_.ShowSave();
    QCOMPARE(opened_, 2);
}

void CommonDialogTest::TheFilterIsShownAsGivenAndMindsNoCase()
{
    for (const char* name : {"prova.zlv", "GARA.ZLV", "Prova.Zlv2", "base.tab"}) {
        MakeFile(QString::fromLatin1(name));
    }
    QStringList shown;
    QString filter;
    WhenOpen([&](QFileDialog& dialog) {
        const auto* combo = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        const auto* view = dialog.findChild<QListView*>(QStringLiteral("listView"));
        QVERIFY(combo != nullptr && view != nullptr);
        filter = combo->currentText();
        QTRY_COMPARE(view->model()->rowCount(view->rootIndex()), 2);
        for (int row = 0; row < 2; ++row) {
            shown << view->model()->index(row, 0, view->rootIndex()).data().toString();
        }
    });
    settings_.ShowOpen();
    shown.sort();
    QCOMPARE(filter, QStringLiteral("File Zelvia (*. zlv)"));
    QCOMPARE(shown, QStringList({QStringLiteral("GARA.ZLV"), QStringLiteral("prova.zlv")}));
}

void CommonDialogTest::TheChosenPathComesInBackslashForm()
{
    MakeFile(QStringLiteral("Citt\u00E0.zlv"));
    WhenOpen([](QFileDialog& dialog) { Enter(dialog, QStringLiteral("Citt\u00E0.zlv")); });
    settings_.ShowOpen();
    QCOMPARE(settings_.FileName, settings_.InitDir + "\\Citt\xE0.zlv");
}

void CommonDialogTest::ANameGetsTheSuffixOfTheFilter_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("file");
    const auto row = [](const char* typed, const char* file) {
        QTest::newRow(typed) << QString::fromLatin1(typed) << QString::fromLatin1(file);
    };
    row("nuovo", "nuovo.zlv");
    row("nuovo.zlv", "nuovo.zlv");
    row("gara.ZLV", "gara.ZLV");
    row("gara 6.10", "gara 6.10.zlv");
    row("altro.tab", "altro.tab.zlv");
    row("fine.", "fine..zlv");
    row("./qui", "qui.zlv");
    row("dentro/nuovo", "dentro/nuovo.zlv");
    // There are a folder and a file of these names where the program was started from.
    row("maria", "maria.zlv");
    row("luca", "luca.zlv");
}

void CommonDialogTest::ANameGetsTheSuffixOfTheFilter()
{
    QFETCH(QString, typed);
    QFETCH(QString, file);
    QVERIFY(QDir(folder_->path()).mkdir(QStringLiteral("dentro")));
    const QTemporaryDir start;
    QVERIFY(QDir(start.path()).mkdir(QStringLiteral("maria")));
    QVERIFY(QFile(start.filePath(QStringLiteral("luca"))).open(QIODevice::WriteOnly));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(start.path()));
    WhenOpen([&](QFileDialog& dialog) { Enter(dialog, typed); });
    settings_.ShowSave();
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(settings_.FileName, SystemPath(folder_->filePath(file).toStdString()));
}

void CommonDialogTest::AFolderIsGoneInto()
{
    QVERIFY(QDir(folder_->path()).mkpath(QStringLiteral("dentro/piano.zlv")));
    WhenOpen([this](QFileDialog& dialog) {
        Enter(dialog, folder_->filePath(QStringLiteral("dentro")));
        QCOMPARE(dialog.directory().path(), folder_->filePath(QStringLiteral("dentro")));
        Enter(dialog, QStringLiteral(".."));
        QCOMPARE(dialog.directory().path(), folder_->path());
        Enter(dialog, QStringLiteral("dentro/"));
        QCOMPARE(dialog.directory().path(), folder_->filePath(QStringLiteral("dentro")));
        Enter(dialog, QStringLiteral("PIANO"));
        QCOMPARE(dialog.directory().path(), folder_->filePath(QStringLiteral("dentro/piano.zlv")));
        QVERIFY(dialog.isVisible());
    });
    settings_.ShowSave();
    QCOMPARE(opened_, 1);
    QCOMPARE(settings_.FileName, Text());
}

void CommonDialogTest::OpenFindsANameWithoutSuffix_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("file");
    QTest::newRow("no suffix") << "prova"
                               << "prova.zlv";
    QTest::newRow("a dot in the name") << "gara 6.10"
                                       << "gara 6.10.zlv";
    QTest::newRow("other letters") << "PROVA"
                                   << "prova.zlv";
    QTest::newRow("both") << "Gara 6.10"
                          << "gara 6.10.zlv";
    // Written by hand, or by a program of another kind.
    QTest::newRow("a file without suffix") << "vecchia 2.0"
                                           << "vecchia 2.0";
}

void CommonDialogTest::OpenFindsANameWithoutSuffix()
{
    QFETCH(QString, typed);
    QFETCH(QString, file);
    for (const char* name : {"prova.zlv", "gara 6.10.zlv", "vecchia 2.0"}) {
        MakeFile(QString::fromLatin1(name));
    }
    settings_.Flags = DialogFlags::FileMustExist;
    // By Enter, and by the button.
    WhenOpen([&](QFileDialog& dialog) { Enter(dialog, typed); });
    settings_.ShowOpen();
    QCOMPARE(settings_.FileName, SystemPath(folder_->filePath(file).toStdString()));
    settings_.FileName.clear();
    WhenOpen([&](QFileDialog& dialog) {
        auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        QTRY_VERIFY(dialog.isActiveWindow());
        edit->setFocus();
        hand::Type(typed);
        QTRY_COMPARE(edit->text(), typed);
        auto* open = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
        QVERIFY(open->isEnabled());
        open->click();
    });
    settings_.ShowOpen();
    QCOMPARE(settings_.FileName, SystemPath(folder_->filePath(file).toStdString()));
}

void CommonDialogTest::OpenTellsOfAMissingFile()
{
    settings_.Flags = DialogFlags::FileMustExist;
    WhenOpen([this](QFileDialog& dialog) {
        script_->Expect({QFileDialog::tr("%1\nFile not found.\nPlease verify the correct file name was given.")
                             .arg(QStringLiteral("manca")),
                         QMessageBox::Warning, QMessageBox::Ok, QMessageBox::Ok, QStringLiteral("Apri")});
        Enter(dialog, QStringLiteral("manca"));
        QVERIFY(dialog.isVisible());
        QVERIFY(!dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->isEnabled());
    });
    settings_.ShowOpen();
    QCOMPARE(settings_.FileName, Text());
}

void CommonDialogTest::AnExistingFileIsAskedForInItalian()
{
    MakeFile(QStringLiteral("prova.zlv"));
    settings_.Flags = DialogFlags::OverwritePrompt;
    const ExpectedBox no = Question(QStringLiteral("prova.zlv"), QMessageBox::No);
    QVERIFY2(no.text.contains(QStringLiteral("sostitu")), qPrintable(no.text));
    WhenOpen([&](QFileDialog& dialog) {
        script_->Expect(no);
        Enter(dialog, QStringLiteral("prova"));
        TRY_SCRIPT(*script_);
        QVERIFY(dialog.isVisible());
    });
    settings_.ShowSave();
    QCOMPARE(settings_.FileName, Text());
    WhenOpen([](QFileDialog& dialog) { Enter(dialog, QStringLiteral("prova")); });
    script_->Expect(Question(QStringLiteral("prova.zlv"), QMessageBox::Yes));
    settings_.ShowSave();
    QCOMPARE(settings_.FileName, settings_.InitDir + "\\prova.zlv");

    // Without the flag nothing is asked.
    settings_.Flags = 0;
    WhenOpen([](QFileDialog& dialog) { Enter(dialog, QStringLiteral("prova")); });
    settings_.ShowSave();
}

void CommonDialogTest::AFileInOtherLettersIsAskedFor()
{
    MakeFile(QStringLiteral("maria.zlv"));
    settings_.Flags = DialogFlags::OverwritePrompt;
    for (const QMessageBox::StandardButton press : {QMessageBox::No, QMessageBox::Yes}) {
        QString kept;
        WhenOpen([&](QFileDialog& dialog) {
            Enter(dialog, QStringLiteral("Maria"));
            kept = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
        });
        script_->Expect(Question(QStringLiteral("maria.zlv"), press));
        script_->Meanwhile([] {
            const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QCOMPARE(box->textFormat(), Qt::PlainText);
            QVERIFY(box->defaultButton() == box->button(QMessageBox::No));
        });
        settings_.ShowSave();
        VERIFY_SCRIPT(*script_);
        QCOMPARE(kept, QStringLiteral("Maria"));
        QCOMPARE(settings_.FileName, press == QMessageBox::Yes ? settings_.InitDir + "\\maria.zlv" : Text());
    }
}

void CommonDialogTest::TwoFilesInOtherLettersAreLeftAlone()
{
    MakeFile(QStringLiteral("maria.zlv"));
    MakeFile(QStringLiteral("MARIA.zlv"));
    settings_.Flags = DialogFlags::OverwritePrompt;
    WhenOpen([&](QFileDialog& dialog) { Enter(dialog, QStringLiteral("Maria")); });
    settings_.ShowSave();
    QCOMPARE(settings_.FileName, settings_.InitDir + "\\Maria.zlv");
}

void CommonDialogTest::CancelRaisesItsErrorWhenAskedTo()
{
    settings_.CancelError = true;
    settings_.FileName = "\\altrove\\prova.zlv";
    WhenOpen([](QFileDialog&) {});
    QCOMPARE(ErrorOf([this] { settings_.ShowOpen(); }), 32755);
    WhenOpen([](QFileDialog& dialog) {
        QTRY_VERIFY(dialog.isActiveWindow());
        hand::Key(Qt::Key_Escape);
    });
    QCOMPARE(ErrorOf([this] { settings_.ShowSave(); }), 32755);
    QCOMPARE(opened_, 2);
    QCOMPARE(settings_.FileName, Text("\\altrove\\prova.zlv"));
}

void CommonDialogTest::CancelKeepsTheNameAndSaysNothingOtherwise()
{
    settings_.FileName = "\\altrove\\prova.zlv";
    WhenOpen([](QFileDialog&) {});
    QCOMPARE(ErrorOf([this] { settings_.ShowOpen(); }), 0);
    QCOMPARE(settings_.FileName, Text("\\altrove\\prova.zlv"));
}

void CommonDialogTest::ANameThatCannotBeKeptIsRefused_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("refusal");
    const QString characters = QStringLiteral(" IL NOME CONTIENE CARATTERI NON AMMESSI   ");
    QTest::newRow("outside the set") << QStringLiteral("corsa\u2192.zlv") << characters;
    // Between folders, and around the path in a pointer file.
    QTest::newRow("a backslash") << QStringLiteral("a\\b") << characters;
    QTest::newRow("a quote") << QStringLiteral("a\"b") << characters;
    QTest::newRow("in quotes") << QStringLiteral("\"prova\"") << characters;
    const QString hidden = QStringLiteral(" IL NOME NON PUO' COMINCIARE CON UN PUNTO   ");
    QTest::newRow("hidden") << QStringLiteral(".nascosta") << hidden;
    QTest::newRow("nothing but the suffix") << QStringLiteral(".zlv") << hidden;
    const QString longer = QStringLiteral(" IL NOME E' TROPPO LUNGO   ");
    QTest::newRow("too long with its suffix") << QString(252, u'n') << longer;
    QTest::newRow("too many bytes") << QString(126, u'\u00E8') << longer;
    QTest::newRow("no such folder") << QStringLiteral("manca/uno") << QStringLiteral(" LA CARTELLA NON ESISTE   ");
}

void CommonDialogTest::ANameThatCannotBeKeptIsRefused()
{
    QFETCH(QString, typed);
    QFETCH(QString, refusal);
    settings_.FileName = "\\altrove\\prova.zlv";
    settings_.CancelError = true;
    WhenOpen([&](QFileDialog& dialog) {
        Enter(dialog, typed);
        TRY_SCRIPT(*script_);
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text(), typed);
    });
    script_->Expect({refusal, QMessageBox::Critical});
    script_->Meanwhile(
        [] { QVERIFY(qobject_cast<QFileDialog*>(QApplication::activeModalWidget()->parentWidget()) != nullptr); });
    QCOMPARE(ErrorOf([this] { settings_.ShowSave(); }), 32755);
    QCOMPARE(settings_.FileName, Text("\\altrove\\prova.zlv"));
}

void CommonDialogTest::WhoAsksMayRefuse()
{
    std::vector<Text> asked;
    bool throws = false;
    settings_.Refuses = [&](const Text& path) {
        asked.push_back(path);
        if (throws && path.ends_with("zelvia.zlv")) {
            throw ErroreRunTime(57, "");
        }
        return path.ends_with("zelvia.zlv");
    };
    // An error of its own is reported, and the dialog stays.
    for (const bool fails : {false, true}) {
        asked.clear();
        throws = fails;
        WhenOpen([&](QFileDialog& dialog) {
            Enter(dialog, QStringLiteral("zelvia"));
            QVERIFY(dialog.isVisible());
            Enter(dialog, QStringLiteral("altra"));
        });
        if (fails) {
            script_->Expect(Report(QStringLiteral("ERRORE : 57 ")));
        }
        settings_.ShowSave();
        QVERIFY(asked == (std::vector<Text>{settings_.InitDir + "\\zelvia.zlv", settings_.InitDir + "\\altra.zlv"}));
        VERIFY_SCRIPT(*script_);
        QCOMPARE(settings_.FileName, settings_.InitDir + "\\altra.zlv");
    }
}

void CommonDialogTest::TheFolderInOtherLettersIsTheSame()
{
    QVERIFY(QDir(folder_->path()).mkpath(QStringLiteral("prova/dentro")));
    const QString native = folder_->filePath(QStringLiteral("prova"));
    settings_.InitDir += "\\PROVA";
    const std::pair<QString, Text> rows[] = {{QStringLiteral("uno"), "\\uno.zlv"},
                                             {QStringLiteral("dentro/uno"), "\\dentro\\uno.zlv"},
                                             {native + QStringLiteral("/due"), "\\due.zlv"}};
    for (const auto& [typed, file] : rows) {
        QString shown;
        WhenOpen([&](QFileDialog& dialog) {
            shown = dialog.directory().path();
            Enter(dialog, typed);
        });
        settings_.ShowSave();
        QCOMPARE(shown, native);
        QCOMPARE(settings_.FileName, settings_.InitDir + file);
    }
    WhenOpen([&](QFileDialog& dialog) { Enter(dialog, folder_->filePath(QStringLiteral("tre"))); });
    settings_.ShowSave();
    QCOMPARE(settings_.FileName, SystemPath(folder_->filePath(QStringLiteral("tre.zlv")).toStdString()));
}

void CommonDialogTest::TheNameSurvivesFromOneToTheNext()
{
    MakeFile(QStringLiteral("prova.zlv"));
    WhenOpen([](QFileDialog& dialog) { Enter(dialog, QStringLiteral("prova.zlv")); });
    settings_.ShowOpen();
    QString offered;
    WhenOpen([&](QFileDialog& dialog) {
        const auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        QVERIFY(edit != nullptr);
        offered = edit->text();
    });
    settings_.ShowSave();
    QCOMPARE(offered, QStringLiteral("prova.zlv"));
    QCOMPARE(settings_.FileName, settings_.InitDir + "\\prova.zlv");
}

void CommonDialogTest::ADialogIsNoLostFocus()
{
    form_->txtUno->KeyPress = [this](int&) { settings_.ShowOpen(); };
    WhenOpen([](QFileDialog& dialog) { QTRY_VERIFY(dialog.isActiveWindow()); });
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(opened_, 1);
    QTRY_COMPARE(form_->Focused(), QByteArray("txtUno"));
    QVERIFY(StaysFalse([this] { return !form_->told.isEmpty(); }));
}

/// Its buttons were below the screen.
void CommonDialogTest::ItFitsASmallScreen()
{
    WindowPlaces::Instance().SetScreen({853, 480});
    const auto whole = qScopeGuard([] { WindowPlaces::Instance().SetScreen({}); });
    WhenOpen([](QFileDialog& dialog) {
        const QSize room = WindowPlaces::Instance().RoomFor(dialog);
        QVERIFY(room.height() < 480);
        QCOMPARE(dialog.size().boundedTo(room), dialog.size());
    });
    settings_.ShowOpen();
    QCOMPARE(opened_, 1);
}

void CommonDialogTest::AHandlerTakesItsPlace()
{
    SetFileDialogHandler([](const CommonDialog& asked, FileDialogMode mode) -> std::optional<Text> {
        return mode == FileDialogMode::Save ? std::optional<Text>(asked.InitDir + "\\scelto.zlv") : std::nullopt;
    });
    settings_.ShowSave();
    QCOMPARE(settings_.FileName, settings_.InitDir + "\\scelto.zlv");
    settings_.CancelError = true;
    QCOMPARE(ErrorOf([this] { settings_.ShowOpen(); }), 32755);
}

ZELVIA_WINDOW_TEST(CommonDialogTest)

#include "CommonDialogTest.moc"
