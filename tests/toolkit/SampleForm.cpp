// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/SampleForm.h"

#include "toolkit/Menu.h"

#include <QApplication>
#include <QMenuBar>
#include <QTest>

using namespace zelvia;

SampleForm::SampleForm()
    : Form(QStringLiteral("frmProva")), pctFondo(new Picture(this, QStringLiteral("pctFondo"))),
      txtUno(new TextBox(this, QStringLiteral("txtUno"))), txtDue(new TextBox(this, QStringLiteral("txtDue"))),
      txtTre(new TextBox(this, QStringLiteral("txtTre"))), lstUno(new ListBox(this, QStringLiteral("lstUno"))),
      lblFermo(new Label(this, QStringLiteral("lblFermo"))), lblVai(new Label(this, QStringLiteral("lblVai"))),
      pctFigura(new Picture(this, QStringLiteral("pctFigura"))), upUno(new UpDown(this, QStringLiteral("upUno"))),
      upDue(new UpDown(this, QStringLiteral("upDue"))), cmdVai(new Button(this, QStringLiteral("cmdVai"), "Vai")),
      bar(new QMenuBar(this))
{
    resize(600, 400);
    Place();
    for (const TextView entry : {"Corto", "Medio", "Lungo", "Lunghissimo"}) {
        lstUno->AddItem(entry);
    }
    lblFermo->SetCaption("Fermo");
    lblVai->SetCaption("Vai");
    mnuFile = &AddMenu(*bar, "mnuFile", "&File",
                       {{"mnuSalva", "&Salva", [this] { Tell("mnuSalva"); }, QKeySequence::Save},
                        {"mnuAltro", "&Altro", [this] { Tell("mnuAltro"); }}});
    FillMenu(popUp, {{"mnuCancella", "&Cancella", [this] { Tell("mnuCancella"); }}}, MenuKind::PopUp);
    WriteDown();
}

void SampleForm::Place()
{
    bar->setGeometry(0, 0, 600, 26);
    pctFondo->setGeometry(560, 360, 20, 20);
    txtUno->setGeometry(20, 50, 150, 28);
    lstUno->setGeometry(20, 80, 150, 130);
    txtDue->setGeometry(200, 50, 150, 28);
    txtTre->setGeometry(200, 100, 150, 28);
    lblFermo->setGeometry(200, 150, 80, 24);
    lblVai->setGeometry(200, 200, 80, 24);
    pctFigura->setGeometry(300, 150, 50, 50);
    upUno->setGeometry(400, 50, UpDown::kWidth, UpDown::kHeight);
    upDue->setGeometry(440, 50, UpDown::kWidth, UpDown::kHeight);
    cmdVai->setGeometry(400, 100, 100, 30);
}

void SampleForm::WriteDown()
{
    for (Control* control : std::initializer_list<Control*>{pctFondo, txtUno, txtDue, txtTre, lstUno, lblFermo, lblVai,
                                                            pctFigura, upUno, upDue, cmdVai}) {
        const QByteArray name = control->Widget().objectName().toLatin1();
        control->GotFocus = [this, name] { Tell('+' + name); };
        control->LostFocus = [this, name] { Tell('-' + name); };
    }
    lblVai->OnClick([this] { Tell("lblVai"); });
    cmdVai->Click = [this] { Tell("cmdVai"); };
}

void SampleForm::Open()
{
    show();
    activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(this));
    QTRY_VERIFY(focusWidget() != nullptr && focusWidget()->hasFocus());
    QCoreApplication::processEvents();
    told.clear();
}

void SampleForm::Start(Control& control)
{
    const QByteArray name = control.Widget().objectName().toLatin1();
    control.SetFocus();
    QTRY_COMPARE(Focused(), name);
    QTRY_VERIFY(told.contains('+' + name));
    told.clear();
}

QByteArray SampleForm::Focused() const
{
    Control* control = ControlOf(QApplication::focusWidget());
    return control == nullptr ? QByteArray() : control->Widget().objectName().toLatin1();
}

void SampleForm::Tell(const QByteArray& word)
{
    told += told.isEmpty() ? word : ' ' + word;
}

QPoint RowCentre(const ListBox& list, int row)
{
    return list.viewport()->mapTo(&list, list.visualItemRect(list.item(row)).center());
}

void SampleForm::keyPressEvent(QKeyEvent* event)
{
    if (!UnhandledKey || !UnhandledKey(*event)) {
        Form::keyPressEvent(event);
    }
}
