// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Form.h"

#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/SampleForm.h"

#include <QWindow>

using namespace zelvia;

namespace
{

/// A window that counts what happens to it.
class CountedForm : public Form
{
public:
    CountedForm() : Form(QStringLiteral("frmContata"))
    {
        ++created;
        resize(200, 150);
    }
    ~CountedForm() override { ++released; }

    bool refuse = false;
    static inline int created = 0;
    static inline int asked = 0;
    static inline int unloaded = 0;
    static inline int released = 0;

protected:
    bool QueryUnload() override
    {
        ++asked;
        return refuse;
    }
    void OnUnload() override { ++unloaded; }
};

} // namespace

class FormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void ItIsCreatedHiddenAtFirstAddress();
    void ASecondLoadDoesNothing();
    void UnloadingReleasesIt_data();
    void UnloadingReleasesIt();
    void TheCloseBoxUnloads();
    void ARefusalKeepsIt();
    void LoadingRightAfterUnloadingMakesANewOne();
    void NeitherEscapeNorEnterEndOrPressAnything();
    void EnterAndSpacePressTheButtonThatHasTheFocus();
    void AFormKnowsItsWidgets();

private:
    FormSlot<CountedForm> slot_;
};

void FormTest::init()
{
    CountedForm::created = CountedForm::asked = CountedForm::unloaded = CountedForm::released = 0;
}

void FormTest::cleanup()
{
    if (slot_.Loaded()) {
        slot_.Load().refuse = false;
        slot_.Unload();
    }
    QTRY_COMPARE(CountedForm::released, CountedForm::created);
}

void FormTest::ItIsCreatedHiddenAtFirstAddress()
{
    QVERIFY(!slot_.Loaded());
    slot_.Unload();
    QCOMPARE(CountedForm::created, 0);
    CountedForm& form = slot_.Load();
    QCOMPARE(CountedForm::created, 1);
    QVERIFY(slot_.Loaded());
    QVERIFY(!form.isVisible());
    QCOMPARE(form.objectName(), QStringLiteral("frmContata"));
}

void FormTest::ASecondLoadDoesNothing()
{
    CountedForm& first = slot_.Load();
    first.show();
    QCOMPARE(&slot_.Load(), &first);
    QCOMPARE(CountedForm::created, 1);
    QVERIFY(first.isVisible());
}

void FormTest::UnloadingReleasesIt_data()
{
    QTest::addColumn<bool>("shown");
    QTest::newRow("shown") << true;
    QTest::newRow("never shown") << false;
}

void FormTest::UnloadingReleasesIt()
{
    QFETCH(bool, shown);
    CountedForm& form = slot_.Load();
    if (shown) {
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
    }
    slot_.Unload();
    QCOMPARE(CountedForm::asked, 1);
    QCOMPARE(CountedForm::unloaded, 1);
    QTRY_COMPARE(CountedForm::released, 1);
    QVERIFY(!slot_.Loaded());
}

void FormTest::TheCloseBoxUnloads()
{
    CountedForm& form = slot_.Load();
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    if (hand::OnX11()) {
        hand::AwaitManager(form.winId());
        hand::KeyForManager({QStringLiteral("key"), QStringLiteral("alt+F4")},
                            [] { return CountedForm::unloaded > 0; });
    } else {
        form.windowHandle()->close();
    }
    QTRY_COMPARE(CountedForm::unloaded, 1);
    QTRY_COMPARE(CountedForm::released, 1);
}

void FormTest::ARefusalKeepsIt()
{
    CountedForm& form = slot_.Load();
    form.refuse = true;
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    QVERIFY(!form.Unload());
    QVERIFY(form.isVisible());
    QCOMPARE(CountedForm::unloaded, 0);
    QCOMPARE(&slot_.Load(), &form);
    form.refuse = false;
    QVERIFY(form.Unload());
    QCOMPARE(CountedForm::unloaded, 1);
}

void FormTest::LoadingRightAfterUnloadingMakesANewOne()
{
    slot_.Load().show();
    slot_.Unload();
    QVERIFY(!slot_.Loaded());
    slot_.Load().show();
    QCOMPARE(CountedForm::created, 2);
    QTRY_COMPARE(CountedForm::released, 1);
    QVERIFY(slot_.Loaded());
    QVERIFY(slot_.Load().isVisible());
}

void FormTest::NeitherEscapeNorEnterEndOrPressAnything()
{
    SampleForm form;
    form.Open();
    form.Start(*form.txtUno);
    hand::Key(Qt::Key_Return);
    hand::Key(Qt::Key_Escape);
    form.Start(*form.pctFondo);
    hand::Key(Qt::Key_Return);
    hand::Key(Qt::Key_Escape);
    QVERIFY(StaysFalse([&] { return !form.told.isEmpty() || !form.isVisible(); }));
}

void FormTest::EnterAndSpacePressTheButtonThatHasTheFocus()
{
    SampleForm form;
    form.Open();
    form.Start(*form.cmdVai);
    hand::Key(Qt::Key_Return);
    hand::Key(Qt::Key_Enter);
    hand::Key(Qt::Key_Space);
    QTRY_COMPARE(form.told, QByteArray("cmdVai cmdVai cmdVai"));
    QVERIFY(!form.cmdVai->isDefault());
    QVERIFY(!form.cmdVai->autoDefault());
}

void FormTest::AFormKnowsItsWidgets()
{
    SampleForm form;
    QCOMPARE(Form::Of(form.txtUno), &form);
    QCOMPARE(Form::Of(form.lstUno->viewport()), &form);
    QCOMPARE(Form::Of(&form), &form);
    QVERIFY(Form::Of(nullptr) == nullptr);
    QWidget stranger;
    QVERIFY(Form::Of(&stranger) == nullptr);
}

ZELVIA_WINDOW_TEST(FormTest)

#include "FormTest.moc"
