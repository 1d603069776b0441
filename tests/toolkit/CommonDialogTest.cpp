// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/CommonDialog.h"

#include "core/Files.h"
#include "core/RunTimeError.h"
#include "support/BoxAnswer.h"
#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/SampleForm.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

using namespace zelvia;

class CommonDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void ItOpensAsItIsSet();
    void TheFilterIsShownAsGivenAndMindsNoCase();
    void TheChosenPathComesInBackslashForm();
    void ANameWithoutSuffixGetsTheFilters();
    void AnExistingFileIsAskedForInItalian();
    void CancelRaisesItsErrorWhenAskedTo();
    void CancelKeepsTheNameAndSaysNothingOtherwise();
    void ANameOutsideTheCharacterSetIsRefused();
    void TheNameSurvivesFromOneToTheNext();
    void ADialogIsNoLostFocus();
    void AHandlerTakesItsPlace();

private:
    using Look = std::function<void(QFileDialog&)>;

    /// Runs `look` once the next file dialog is up; the dialog is cancelled after it, unless it is gone.
    void WhenOpen(const Look& look);
    void MakeFile(const QString& name) const;
    static void Enter(QFileDialog& dialog, const QString& name);
    static int ErrorOf(const std::function<void()>& action);

    std::unique_ptr<SampleForm> form_;
    std::unique_ptr<QTemporaryDir> folder_;
    CommonDialog settings_;
    int opened_ = 0;
};

void CommonDialogTest::init()
{
    form_ = std::make_unique<SampleForm>();
    form_->Open();
    form_->Start(*form_->txtUno);
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
}

void CommonDialogTest::WhenOpen(const Look& look)
{
    auto* poll = new QTimer(this);
    connect(poll, &QTimer::timeout, this, [this, poll, look] {
        const QPointer<QFileDialog> dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog.isNull() || !dialog->isVisible()) {
            return;
        }
        poll->deleteLater();
        poll->stop();
        ++opened_;
        look(*dialog);
        if (!dialog.isNull() && dialog->isVisible()) {
            dialog->reject();
        }
    });
    poll->start(10);
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

void CommonDialogTest::ANameWithoutSuffixGetsTheFilters()
{
    WhenOpen([](QFileDialog& dialog) { Enter(dialog, QStringLiteral("nuovo")); });
    settings_.ShowSave();
    QCOMPARE(settings_.FileName, settings_.InitDir + "\\nuovo.zlv");
    WhenOpen([](QFileDialog& dialog) { Enter(dialog, QStringLiteral("altro.tab")); });
    settings_.ShowSave();
    QCOMPARE(settings_.FileName, settings_.InitDir + "\\altro.tab");
}

void CommonDialogTest::AnExistingFileIsAskedForInItalian()
{
    MakeFile(QStringLiteral("prova.zlv"));
    settings_.Flags = DialogFlags::OverwritePrompt;
    {
        const BoxAnswer answer(QMessageBox::No);
        WhenOpen([&](QFileDialog& dialog) {
            Enter(dialog, QStringLiteral("prova"));
            QTRY_COMPARE(answer.Texts().size(), 1);
            QVERIFY(dialog.isVisible());
        });
        settings_.ShowSave();
        QCOMPARE(settings_.FileName, Text());
        const QString asked = answer.Texts().value(0);
        QVERIFY2(asked.contains(QStringLiteral("prova.zlv")) && asked.contains(QStringLiteral("sostitu")),
                 qPrintable(asked));
    }
    const BoxAnswer answer(QMessageBox::Yes);
    WhenOpen([](QFileDialog& dialog) { Enter(dialog, QStringLiteral("prova")); });
    settings_.ShowSave();
    QCOMPARE(settings_.FileName, settings_.InitDir + "\\prova.zlv");

    // Without the flag nothing is asked.
    settings_.Flags = 0;
    WhenOpen([](QFileDialog& dialog) { Enter(dialog, QStringLiteral("prova")); });
    settings_.ShowSave();
    QCOMPARE(answer.Texts().size(), 1);
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

void CommonDialogTest::ANameOutsideTheCharacterSetIsRefused()
{
    settings_.FileName = "\\altrove\\prova.zlv";
    WhenOpen([](QFileDialog& dialog) { Enter(dialog, QStringLiteral("corsa\u2192.zlv")); });
    QCOMPARE(ErrorOf([this] { settings_.ShowSave(); }), 52);
    QCOMPARE(settings_.FileName, Text("\\altrove\\prova.zlv"));
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

ZELVIA_WINDOW_TEST_MAIN(CommonDialogTest)

#include "CommonDialogTest.moc"
