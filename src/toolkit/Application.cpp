// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Application.h"

#include "core/CMouse.h"
#include "core/Files.h"
#include "core/MessageBox.h"
#include "core/RunTimeError.h"
#include "toolkit/Accessible.h"
#include "toolkit/DrawnIcon.h"
#include "toolkit/Events.h"
#include "toolkit/FocusController.h"
#include "toolkit/Fonts.h"
#include "toolkit/PagePalette.h"
#include "toolkit/PageStyle.h"
#include "toolkit/QtText.h"

#include <QContextMenuEvent>
#include <QFile>
#include <QImageReader>
#include <QKeyEvent>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPixmap>
#include <QThread>
#include <QToolTip>
#include <QTranslator>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <utility>

namespace zelvia
{
namespace
{

// Not Qt's display name, which would be appended to the caption of every window.
constexpr QLatin1String kBoxTitle("Zelvia");

QMessageBox::StandardButtons QtButtons(MsgButtons buttons)
{
    switch (buttons) {
    case MsgButtons::OKCancel: return QMessageBox::Ok | QMessageBox::Cancel;
    case MsgButtons::YesNoCancel: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    default: return QMessageBox::Ok;
    }
}

QMessageBox::Icon QtIcon(MsgIcon icon)
{
    switch (icon) {
    case MsgIcon::Critical: return QMessageBox::Critical;
    case MsgIcon::Exclamation: return QMessageBox::Warning;
    case MsgIcon::Information: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
    }
}

MsgAnswer ShowMessageBox(const MsgRequest& request)
{
    const BoxUp up;
    QMessageBox box(QtIcon(request.icon), kBoxTitle, QString(), QtButtons(request.buttons), up.Owner());
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQString(request.text));
    switch (box.exec()) {
    case QMessageBox::Yes: return MsgAnswer::Yes;
    case QMessageBox::No: return MsgAnswer::No;
    case QMessageBox::Cancel: return MsgAnswer::Cancel;
    default: return MsgAnswer::OK;
    }
}

void ShowScreenPointer(i16 pointer)
{
    while (QApplication::overrideCursor() != nullptr) {
        QApplication::restoreOverrideCursor();
    }
    if (pointer == MousePointer::Hourglass) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    }
}

void InstallItalian(QApplication& application)
{
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    auto* translator = new QTranslator(&application);
    if (translator->load(QLatin1String("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(translator);
    }
}

/// The paper, its inks and its print for every window, whatever the desktop has: tooltips keep colours of their own.
void DressOnPaper()
{
    constexpr int pixels = 15;
    constexpr int tipPixels = 14;
    QCoreApplication::setAttribute(Qt::AA_DontShowIconsInMenus);
    QApplication::setStyle(MakePageStyle());
    QApplication::setPalette(PagePalette());
    QApplication::setFont(PrintFont(pixels));
    // What menus say is printed too.
    QPalette menus = PagePalette();
    menus.setColor(QPalette::Text, Ink::PrintDark);
    menus.setColor(QPalette::Disabled, QPalette::Text, Ink::Faded);
    QApplication::setPalette(menus, "QMenu");
    QPalette tips = PagePalette();
    tips.setColor(QPalette::Window, Ink::Slip);
    tips.setColor(QPalette::WindowText, Ink::PrintDark);
    QToolTip::setPalette(tips);
    QToolTip::setFont(PrintFont(tipPixels));
    QApplication::setWindowIcon(DrawnIcon(DrawProgramIcon));
}

/// Shift+F10 stands for the menu key where the keyboard has none.
bool IsMenuChord(QEvent& event)
{
    return event.type() == QEvent::KeyPress && static_cast<QKeyEvent&>(event).key() == Qt::Key_F10 &&
           static_cast<QKeyEvent&>(event).modifiers() == Qt::ShiftModifier;
}

} // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv)
{
    setApplicationName(QLatin1String("zelvia"));
    DressOnPaper();
    InstallItalian(*this);
    InstallAccessibility();
    FocusController::Instance();
    SetMsgBoxHandler(ShowMessageBox);
    SetScreenMousePointerHandler(ShowScreenPointer);
}

Application::~Application()
{
    SetScreenMousePointerHandler({});
    SetMsgBoxHandler({});
}

int Application::End(int status)
{
    if (platformName().startsWith(QLatin1String("wayland"))) {
        std::fflush(nullptr);
        std::quick_exit(status);
    }
    return status;
}

bool Application::TakeInstanceLock()
{
    ReleaseInstanceLock();
    QString path = ToQString(ProgramFolder() + "\\.zelvia.lock");
    auto lock = std::make_unique<InstanceLock>(path.replace(QLatin1Char('\\'), QLatin1Char('/')));
    // A run that checks whether the diary is open holds the lock for a moment, and one that has just started can't
    // answer yet.
    constexpr std::chrono::milliseconds pause(10);
    for (int tries = 20; !lock->Take(); --tries) {
        if (lock->Ask() || tries == 0) {
            return false;
        }
        std::this_thread::sleep_for(pause);
    }
    lock->Answer([this] { Fire(ShowAgain); });
    lock_ = std::move(lock);
    return true;
}

bool Application::notify(QObject* receiver, QEvent* event)
{
    if (QThread::currentThread() != thread()) {
        return QApplication::notify(receiver, event);
    }
    const QEvent::Type type = event->type();
    try {
        if (receiver->isWidgetType() && IsMenuChord(*event)) {
            const QPoint middle = static_cast<QWidget*>(receiver)->rect().center();
            QContextMenuEvent menu(QContextMenuEvent::Keyboard, middle,
                                   static_cast<QWidget*>(receiver)->mapToGlobal(middle));
            return QApplication::notify(receiver, &menu);
        }
        const bool done =
            FocusController::Instance().FilterInput(receiver, event) || QApplication::notify(receiver, event);
        lastCatch_.Passed(receiver, type);
        return done;
    } catch (...) {
        lastCatch_.Take(receiver, type);
        return true;
    }
}

QCursor LoadCursor(TextView path)
{
    // The header: reserved 0, type 2, count; then of the first picture its size, colours and, from byte 10, its hot
    // spot.
    constexpr std::size_t headerSize = 14;
    std::array<unsigned char, headerSize> header{};
    const FileHandle file = OpenFile(path, OpenMode::Input);
    errno = 0;
    const bool complete = std::fread(header.data(), 1, header.size(), file.get()) == header.size();
    if (std::ferror(file.get()) != 0) {
        throw ErroreRunTime(ErrorOfErrno(errno));
    }
    QImageReader reader(QString::fromStdString(NativePath(path).string()), "cur");
    const QImage image = complete && header[2] == 2 ? reader.read() : QImage();
    if (image.isNull()) {
        throw ErroreRunTime(Errore::ImmagineNonValida);
    }
    return QCursor(QPixmap::fromImage(image), header[10] + 256 * header[11], header[12] + 256 * header[13]);
}

} // namespace zelvia
