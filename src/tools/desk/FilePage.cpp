// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/ActionPage.h"
#include "tools/desk/DeskPages.h"
#include "tools/desk/PathField.h"

#include <QComboBox>
#include <QFileInfo>
#include <QFormLayout>

#include <span>

namespace zelvia
{
namespace
{

/// A form in which an action writes a file.
struct FileForm {
    const char* name; ///< For --formato.
    const char* words;
    const char* suffix;
};

/// A page whose action writes one file.
class FilePage : public ActionPage
{
    Q_OBJECT

public:
    FilePage(Desk& desk, const QString& heading, const QString& purpose, const char* action,
             std::span<const FileForm> forms)
        : ActionPage(desk, heading, purpose), action_(action), forms_(forms), form_(new QComboBox),
          file_(new PathField(PathField::Kind::SaveFile, tr("File da scrivere")))
    {
        form_->setObjectName(QStringLiteral("form"));
        form_->setAccessibleName(tr("Formato"));
        for (const FileForm& row : forms) {
            form_->addItem(tr(row.words));
        }
        Choices().addRow(tr("&Formato:"), form_);
        Choices().addRow(file_->MakeCaption(tr("Fi&le:")), file_);
        connect(form_, &QComboBox::currentIndexChanged, this, &FilePage::ChooseForm);
        connect(file_, &PathField::Changed, this, &FilePage::Choose);
        TellForm();
    }

protected:
    std::vector<std::string> Words() const override
    {
        if (file_->Path().empty()) {
            return {};
        }
        std::vector<std::string> words = {action_, "--formato", Form().name, "-o", file_->Path().string()};
        if (replaces_) {
            words.emplace_back("--sovrascrivi");
        }
        return words;
    }

    QString Success() const override { return tr("Scritto «%1».").arg(QString::fromStdString(file_->Path().string())); }
    QString Missing() const override { return tr("Scegliere il file da scrivere."); }

    void Show(const ToolOutcome& outcome) override
    {
        replaces_ = IsThere();
        Say(outcome.status == kDone && replaces_
                ? outcome.told + QLatin1Char('\n') + tr("Il file c'è già: viene sostituito.")
                : outcome.told,
            outcome.status != kDone);
    }

private:
    bool IsThere() const { return QFileInfo::exists(QString::fromStdString(file_->Path().string())); }
    const FileForm& Form() const { return forms_[static_cast<std::size_t>(form_->currentIndex())]; }

    void TellForm()
    {
        const QString suffix = QLatin1String(Form().suffix);
        file_->SetFilter(QStringLiteral("%1 (*.%2)").arg(form_->currentText(), suffix), suffix);
    }

    /// A name keeps its beginning and gets the end of the new form.
    void ChooseForm()
    {
        TellForm();
        QString name = file_->Edit().text();
        for (const FileForm& row : forms_) {
            const QString end = QLatin1Char('.') + QLatin1String(row.suffix);
            if (name.endsWith(end)) {
                name.chop(end.size());
                file_->Edit().setText(name + QLatin1Char('.') + QLatin1String(Form().suffix));
                break;
            }
        }
        Choose();
    }

    std::string action_;
    std::span<const FileForm> forms_;
    QComboBox* form_;
    PathField* file_;
    bool replaces_ = false; ///< It was said that there is such a file, which is replaced.
};

constexpr FileForm kExportForms[] = {
    {"csv", QT_TRANSLATE_NOOP("zelvia::FilePage", "I giorni, per un foglio di calcolo (CSV)"), "csv"},
    {"splits", QT_TRANSLATE_NOOP("zelvia::FilePage", "I tempi al chilometro, per un foglio di calcolo (CSV)"), "csv"},
    {"jsonl", QT_TRANSLATE_NOOP("zelvia::FilePage", "I giorni, per un programma (righe JSON)"), "jsonl"},
    {"ics", QT_TRANSLATE_NOOP("zelvia::FilePage", "Le gare e la tabella attiva, per un'agenda (iCalendar)"), "ics"}};

constexpr FileForm kBookForms[] = {
    {"a5", QT_TRANSLATE_NOOP("zelvia::FilePage", "Da stampare e rilegare, A5 (PDF)"), "pdf"},
    {"a4", QT_TRANSLATE_NOOP("zelvia::FilePage", "Da stampare e rilegare, A4 (PDF)"), "pdf"},
    {"html", QT_TRANSLATE_NOOP("zelvia::FilePage", "Da leggere sul telefono (HTML)"), "html"}};

} // namespace

DeskPage* MakeExportPage(Desk& desk)
{
    return new FilePage(desk, FilePage::tr("Esporta"),
                        FilePage::tr("Scrive il diario scelto in un file per altri programmi. Il diario resta com'è."),
                        "esporta", kExportForms);
}

DeskPage* MakeBookPage(Desk& desk)
{
    return new FilePage(
        desk, FilePage::tr("Il libro dell'anno"),
        FilePage::tr("Fa del diario scelto un libro: l'anno in breve, i giorni, le gare, i percorsi, le "
                     "statistiche e le tabelle. Il diario resta com'è."),
        "libro", kBookForms);
}

} // namespace zelvia

#include "FilePage.moc"
