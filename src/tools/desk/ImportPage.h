// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/desk/DeskPage.h"
#include "tools/desk/ImportForm.h"
#include "tools/desk/ImportReading.h"
#include "tools/desk/ImportTable.h"

#include <QTimer>

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QMimeData;
class QPushButton;

namespace zelvia
{

class ImportColumns;
struct ImportComparison;

/// The page that brings the files of watches, or a spreadsheet, into the diaries. Reading, comparing with the days and
/// writing are tasks of the desk; after each correction the days are compared again.
class ImportPage : public DeskPage
{
    Q_OBJECT

public:
    explicit ImportPage(Desk& desk);
    ~ImportPage() override;

    /// Looks at what was found beside its days again.
    void Refresh() override;

    /// Reads these files and folders too.
    void Add(const std::vector<std::string>& names);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void Build();
    QLayout* BuildChoices();
    void Connect();
    void ChooseFiles();
    void ChooseFolder();
    void Clear();

    ImportRules Rules() const;
    void Read();
    void FetchFound();
    void EndReading(const ToolOutcome& outcome);
    void ReadTablesAgain();

    std::shared_ptr<ImportComparison> NewComparison() const;
    void Compare();
    void EndComparing(const ImportComparison& comparison, const ToolOutcome& outcome);
    void ProposeAnew();
    void Tick(const std::vector<int>& rows, bool wanted);
    void Correct(const DayCorrections& corrections);
    void ShowRow(int row);
    std::vector<bool> Ticks() const;

    void AskToWrite();
    void Write();
    void EndWriting(const ToolOutcome& outcome);

    void Say(const QString& text, bool failed = false);
    void ShowState();

    ImportModel* model_;
    ImportTable* table_;
    ImportForm* form_;
    ImportColumns* columns_;
    QComboBox* zone_;
    QComboBox* clock_;
    QCheckBox* all_;
    QLabel* told_;
    QLabel* summary_;
    QPushButton* again_;
    QPushButton* write_;
    QPushButton* clear_;

    std::vector<std::string> waiting_; ///< To be read next.
    std::shared_ptr<ImportReading> reading_;
    QTimer fetching_;
    bool outdated_ = false; ///< Tables are being read whose columns have been told since.
    std::map<int, ImportForm::Lists> lists_;
    int comparisons_ = 0;
    bool compared_ = false;
    bool failed_ = false; ///< They could not be compared.
    bool writing_ = false;
    std::optional<std::vector<bool>> wanted_; ///< To be written when the days were looked at, if it is still the same.
};

/// The files and folders of this computer that are dragged.
std::vector<std::string> LocalFiles(const QMimeData& data);

} // namespace zelvia
