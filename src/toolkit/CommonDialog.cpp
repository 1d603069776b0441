// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/CommonDialog.h"

#include "core/Conversions.h"
#include "core/Files.h"
#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "toolkit/DrawnIcon.h"
#include "toolkit/Events.h"
#include "toolkit/QtText.h"
#include "toolkit/WindowPlaces.h"

#include <QAbstractFileIconProvider>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFrame>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSplitter>
#include <QTreeView>

namespace zelvia
{
namespace
{

constexpr int kLongestName = 255; // Bytes.

struct FilterParts {
    QString description;
    QString pattern;
};

FilterParts Parse(TextView filter)
{
    const auto bar = InStr(filter, "|");
    const Text pattern = Mid(filter, bar + 1);
    return {ToQString(Left(filter, bar - 1)), ToQString(Left(pattern, InStr(pattern, "|") - 1))};
}

QString NativeString(TextView path)
{
    return ToQString(path).replace(QLatin1Char('\\'), QLatin1Char('/'));
}

Text BackslashForm(const QString& native)
{
    return SystemPath(native.toStdString());
}

/// Drawn icons for folders and files, and the kind of a file by its suffix: the desktop's icons and its database of
/// kinds differ on each desktop, and take their time to load.
class FileIcons : public QAbstractFileIconProvider
{
public:
    QIcon icon(IconType type) const override
    {
        switch (type) {
        case Computer:
        case Drive: return Drawn(QStyle::SP_ComputerIcon);
        case File: return Drawn(QStyle::SP_FileIcon);
        default: return Drawn(QStyle::SP_DirIcon);
        }
    }
    QIcon icon(const QFileInfo& file) const override { return icon(file.isDir() ? Folder : File); }
    QString type(const QFileInfo& file) const override
    {
        return file.isDir() ? QStringLiteral("Cartella") : QStringLiteral("File ") + file.suffix();
    }

private:
    static QIcon Drawn(QStyle::StandardPixmap icon) { return DrawnIcon(StandardDrawing(icon)); }
};

/// The dialog that a CommonDialog shows. It accepts a name only when a file of that name can be kept and found again;
/// otherwise it reports why and stays open. A name without the filter's suffix gets it, whatever the current directory
/// is; one that differs from a file's name only in case means that file.
class FileChooser : public QFileDialog
{
public:
    FileChooser(QWidget* owner, const CommonDialog& settings, FileDialogMode mode);

    /// The path accepted, in backslash form.
    const Text& Chosen() const { return chosen_; }

    void accept() override
    {
        Trap(kBareTitle, [this] { TakeChoice(); });
    }

private:
    void MakeRoom();
    bool Opens() const { return acceptMode() == AcceptOpen; }
    void TakeChoice();
    const Message* NameRefusal(const QString& path) const;
    bool RefusesPath(const Text& path) const;
    Text PathMeant(const QString& typed) const;
    bool MayReplace(const QString& path);
    void EnableOpen();

    const CommonDialog& settings_;
    QString suffix_; ///< With its dot.
    QLineEdit* nameEdit_;
    Text chosen_;
};

FileChooser::FileChooser(QWidget* owner, const CommonDialog& settings, FileDialogMode mode)
    : QFileDialog(owner), settings_(settings)
{
    setOption(DontUseNativeDialog);
    setOption(HideNameFilterDetails);
    static FileIcons icons;
    setIconProvider(&icons);
    MakeRoom();
    setDirectory(NativeString(PathOnDisk(settings.InitDir)));
    setAcceptMode(mode == FileDialogMode::Open ? AcceptOpen : AcceptSave);
    setFileMode((settings.Flags & DialogFlags::FileMustExist) != 0 ? ExistingFile : AnyFile);
    setWindowTitle(ToQString(settings.DialogTitle));

    // The description is shown as it is given; the pattern after it is the one that filters, and Qt hides it.
    const FilterParts filter = Parse(settings.Filter);
    setNameFilter(filter.description + QLatin1String(" (") + filter.pattern + QLatin1Char(')'));
    suffix_ = QLatin1Char('.') + filter.pattern.section(QLatin1Char('.'), -1);
    findChild<QFrame*>(QStringLiteral("frame"))->setAccessibleName(QStringLiteral("File"));
    nameEdit_ = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    connect(nameEdit_, &QLineEdit::textChanged, this, &FileChooser::EnableOpen);
    if (!settings.FileName.empty()) {
        selectFile(NativeString(Mid(settings.FileName, InStrRev(settings.FileName, "\\") + 1)));
    }
}

/// Enough for the columns of the list to be read; the names take what the others leave.
void FileChooser::MakeRoom()
{
    constexpr QSize wide(800, 480);
    constexpr int places = 130;
    resize(wide.boundedTo(WindowPlaces::Instance().RoomFor(*this)));
    findChild<QSplitter*>(QStringLiteral("splitter"))->setSizes({places, wide.width() - places});
    auto* columns = findChild<QTreeView*>(QStringLiteral("treeView"))->header();
    columns->setStretchLastSection(false);
    columns->setSectionResizeMode(QHeaderView::ResizeToContents);
    columns->setSectionResizeMode(0, QHeaderView::Stretch);
}

void FileChooser::TakeChoice()
{
    const QString typed = QDir::cleanPath(selectedFiles().value(0));
    if (typed.isEmpty() || nameEdit_->text() == QLatin1String("..") || QFileInfo(typed).isDir()) {
        // Nothing, or a folder to go into.
        QFileDialog::accept();
        return;
    }
    if (const Message* refusal = NameRefusal(typed)) {
        MsgBox(*refusal);
        return;
    }
    const Text path = PathMeant(typed);
    const QString native = NativeString(path);
    if (QFileInfo(native).isDir()) {
        setDirectory(native);
        return;
    }
    if (fileMode() == ExistingFile && !QFileInfo::exists(native)) {
        // Qt's dialog reports that.
        QFileDialog::accept();
        return;
    }
    const Text chosen = PathWithin(path, settings_.InitDir);
    if (!RefusesPath(chosen) && MayReplace(native)) {
        chosen_ = chosen;
        QDialog::accept();
    }
}

/// Why no file can be kept under the name, or nothing.
const Message* FileChooser::NameRefusal(const QString& path) const
{
    // Quotes separate names in the dialog and end a path in a pointer file; backslashes separate folders.
    const QString name = QFileInfo(path).fileName();
    if (!IsInCharacterSet(path) || path.contains(QLatin1Char('\\')) || name.contains(QLatin1Char('"')) ||
        nameEdit_->text().contains(QLatin1Char('"'))) {
        return &Messages::kNameHasOddCharacters;
    }
    if (name.startsWith(QLatin1Char('.'))) {
        return &Messages::kNameIsHidden;
    }
    const int suffix = name.endsWith(suffix_, Qt::CaseInsensitive) ? 0 : static_cast<int>(suffix_.size());
    return QFile::encodeName(name).size() + suffix > kLongestName ? &Messages::kNameTooLong : nullptr;
}

/// Shows why no file can be kept there, when it can't.
bool FileChooser::RefusesPath(const Text& path) const
{
    if (FindFolder(Left(path, InStrRev(path, "\\") - 1)).empty()) {
        MsgBox(Messages::kNoSuchFolder);
        return true;
    }
    return settings_.Refuses && settings_.Refuses(path);
}

/// The path with its suffix, as the disk spells it. A file to be opened may have none.
Text FileChooser::PathMeant(const QString& typed) const
{
    const Text asTyped = PathOnDisk(BackslashForm(typed));
    if (typed.endsWith(suffix_, Qt::CaseInsensitive)) {
        return asTyped;
    }
    Text whole = PathOnDisk(BackslashForm(typed + suffix_));
    const bool rather = Opens() && !QFileInfo::exists(NativeString(whole)) && QFileInfo::exists(NativeString(asTyped));
    return rather ? asTyped : whole;
}

/// Asks before a file is replaced, in the words of Qt's own dialog.
bool FileChooser::MayReplace(const QString& path)
{
    if (Opens() || (settings_.Flags & DialogFlags::OverwritePrompt) == 0 || !QFileInfo::exists(path)) {
        return true;
    }
    QMessageBox box(QMessageBox::Warning, windowTitle(), QString(), QMessageBox::Yes | QMessageBox::No, this);
    box.setTextFormat(Qt::PlainText);
    box.setText(QFileDialog::tr("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(path).fileName()));
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

/// Qt enables the button for the exact name of a file alone.
void FileChooser::EnableOpen()
{
    const QString name = nameEdit_->text();
    auto* buttons = findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
    QPushButton* open = buttons->button(QDialogButtonBox::Open);
    if (open == nullptr || open->isEnabled() || name.isEmpty() || !IsInCharacterSet(name)) {
        return;
    }
    const QString typed = directory().absoluteFilePath(name);
    open->setEnabled(QFileInfo::exists(NativeString(PathMeant(QDir::cleanPath(typed)))));
}

FileDialogHandler replacedDialog;

std::optional<Text> ShowDialog(const CommonDialog& settings, FileDialogMode mode)
{
    const BoxUp up;
    FileChooser dialog(up.Owner(), settings, mode);
    return dialog.exec() == QDialog::Accepted ? std::optional<Text>(dialog.Chosen()) : std::nullopt;
}

void Choose(CommonDialog& settings, FileDialogMode mode)
{
    const std::optional<Text> chosen = replacedDialog ? replacedDialog(settings, mode) : ShowDialog(settings, mode);
    if (chosen) {
        settings.FileName = *chosen;
    } else if (settings.CancelError) {
        throw ErroreRunTime(Errore::Annullato);
    }
}

} // namespace

void CommonDialog::ShowOpen()
{
    Choose(*this, FileDialogMode::Open);
}

void CommonDialog::ShowSave()
{
    Choose(*this, FileDialogMode::Save);
}

void SetFileDialogHandler(FileDialogHandler handler)
{
    replacedDialog = std::move(handler);
}

} // namespace zelvia
