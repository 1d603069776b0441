// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/Fields.h"
#include "tools/desk/ImportForm.h"
#include "tools/strumenti/ImportTexts.h"

#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace zelvia
{

ImportForm::ImportForm()
    : day_(new QDateEdit), start_(MakeTime("start", tr("Inizio"), &ImportForm::TakeStart)),
      end_(MakeTime("end", tr("Fine"), &ImportForm::TakeEnd)), clock_(new QComboBox),
      km_(MakeNumber("km", tr("Km"), RangeOf(&RecordGiorno::Km).maximum, &DayCorrections::km)),
      metres_(MakeNumber("metres", tr("Metri"), RangeOf(&RecordGiorno::Metri).maximum, &DayCorrections::metres)),
      route_(MakeList("route", tr("Percorso"), &DayCorrections::route)),
      type_(MakeList("type", tr("Tipo"), &DayCorrections::type)),
      season_(MakeList("season", tr("Stagione"), &DayCorrections::season)), splits_(new ImportSplits),
      remarks_(new QLabel), back_(new QPushButton(tr("Torna alla &proposta")))
{
    setAccessibleName(tr("Attività scelta"));
    day_->setObjectName(QStringLiteral("day"));
    day_->setAccessibleName(tr("Giorno"));
    day_->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    day_->setDateRange(QDate(1900, 1, 1), QDate(2099, 12, 31));
    day_->setKeyboardTracking(false);
    day_->setSpecialValueText(QStringLiteral(" ")); // Of no row at all.
    clock_->setObjectName(QStringLiteral("clock"));
    clock_->setAccessibleName(tr("Tempo"));
    clock_->setToolTip(tr("Il tempo con le pause, o quello in moto: la fine è l'inizio più questo tempo"));
    remarks_->setObjectName(QStringLiteral("remarks"));
    remarks_->setTextFormat(Qt::PlainText);
    remarks_->setWordWrap(true);
    // Its room stays when it is hidden, so nothing moves.
    QSizePolicy policy = remarks_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    remarks_->setSizePolicy(policy);
    back_->setObjectName(QStringLiteral("back"));
    back_->setToolTip(tr("Toglie ciò che è stato cambiato a mano in questa attività"));
    LayOut();
    OrderTabs();
    // The box in a field is what a screen reader may come to.
    for (QLineEdit* edit : findChildren<QLineEdit*>()) {
        if (edit->accessibleName().isEmpty()) {
            edit->setAccessibleName(edit->parentWidget()->accessibleName());
        }
    }
    connect(day_, &QDateEdit::dateChanged, this, [this](QDate date) {
        Say([&](DayCorrections& said) {
            said.date =
                CalendarDate(date.year(), static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
        });
    });
    connect(clock_, &QComboBox::currentIndexChanged, this, &ImportForm::TakeClock);
    connect(splits_, &ImportSplits::Corrected, this, [this](const std::vector<KilometreTime>& splits) {
        Say([&](DayCorrections& said) { said.splits = splits; });
    });
    connect(splits_, &ImportSplits::Refused, this, &ImportForm::Refused);
    connect(back_, &QPushButton::clicked, this, [this] { Say([](DayCorrections& said) { said = {}; }); });
    Show(nullptr, -1, {});
}

QHBoxLayout* ImportForm::MakeValues()
{
    constexpr int gap = 4;
    constexpr int between = 12;
    auto* distance = new QWidget;
    auto* both = new QHBoxLayout(distance);
    both->setContentsMargins({});
    both->addWidget(km_);
    both->addWidget(new QLabel(tr("metri")));
    both->addWidget(metres_);
    auto* left = new QGridLayout;
    auto* right = new QGridLayout;
    for (QGridLayout* grid : {left, right}) {
        grid->setVerticalSpacing(gap);
        grid->addWidget(new QLabel(tr("Nel diario")), 0, 2);
    }
    AddLine(*left, tr("Giorno:"), *day_, *day_, std::nullopt);
    AddLine(*left, tr("Inizio:"), *start_, *start_, DayColumn::Start);
    AddLine(*left, tr("Fine:"), *end_, *end_, DayColumn::End);
    AddLine(*left, tr("Tempo:"), *clock_, *clock_, DayColumn::Time);
    AddLine(*right, tr("Km:"), *distance, *km_, DayColumn::Km);
    AddLine(*right, tr("Percorso:"), *route_, *route_, DayColumn::Route);
    AddLine(*right, tr("Tipo:"), *type_, *type_, DayColumn::Type);
    AddLine(*right, tr("Stagione:"), *season_, *season_, DayColumn::Season);
    right->setColumnStretch(1, 3);
    right->setColumnStretch(2, 2);
    auto* values = new QHBoxLayout;
    values->addLayout(left);
    values->addSpacing(between);
    values->addLayout(right, 1);
    return values;
}

void ImportForm::LayOut()
{
    auto* below = new QHBoxLayout;
    below->addWidget(remarks_, 1);
    below->addWidget(back_, 0, Qt::AlignTop);
    auto* day = new QVBoxLayout;
    day->addLayout(MakeValues());
    day->addLayout(below);
    day->addStretch();
    auto* all = new QHBoxLayout(this);
    all->setContentsMargins({});
    all->addLayout(day, 1);
    all->addWidget(splits_);
    constexpr int splitsWidth = 212;
    splits_->setFixedWidth(splitsWidth);
}

void ImportForm::OrderTabs()
{
    QWidget* const inOrder[] = {day_, start_, end_, clock_, km_, metres_, route_, type_, season_, back_, splits_};
    for (std::size_t i = 1; i < std::size(inOrder); ++i) {
        setTabOrder(inOrder[i - 1], inOrder[i]);
    }
}

void ImportForm::AddLine(QGridLayout& grid, const QString& caption, QWidget& field, QWidget& named,
                         std::optional<DayColumn> column)
{
    const int row = grid.rowCount();
    auto* name = new QLabel(caption);
    name->setBuddy(&named);
    grid.addWidget(name, row, 0);
    grid.addWidget(&field, row, 1);
    if (column) {
        auto* held = new QLabel;
        held->setObjectName(named.objectName() + QLatin1String("Held"));
        held->setTextFormat(Qt::PlainText);
        if (*column == DayColumn::Route || *column == DayColumn::Type || *column == DayColumn::Season) {
            held->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // As long as there is room for.
        }
        grid.addWidget(held, row, 2);
        lines_[*column] = {&named, held};
    }
}

QLineEdit* ImportForm::MakeTime(const char* name, const QString& caption, void (ImportForm::*take)())
{
    constexpr int longest = 8;
    auto* edit = new QLineEdit;
    edit->setObjectName(QLatin1String(name));
    edit->setAccessibleName(caption);
    edit->setMaxLength(longest);
    edit->setAcceptDrops(false);
    connect(edit, &QLineEdit::editingFinished, this, [this, edit, take] {
        if (edit->isModified()) {
            (this->*take)();
        }
    });
    return edit;
}

QSpinBox* ImportForm::MakeNumber(const char* name, const QString& caption, int most,
                                 std::optional<int> DayCorrections::*said)
{
    auto* box = new QSpinBox;
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(caption);
    box->setMaximum(most);
    box->setKeyboardTracking(false);
    connect(box, &QSpinBox::valueChanged, this,
            [this, said](int value) { Say([&](DayCorrections& day) { day.*said = value; }); });
    return box;
}

QComboBox* ImportForm::MakeList(const char* name, const QString& caption, std::optional<Text> DayCorrections::*said)
{
    auto* box = new QComboBox;
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(caption);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    constexpr int letters = 12;
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(letters);
    box->setAcceptDrops(false);
    box->lineEdit()->setAcceptDrops(false);
    const auto take = [this, box, said] {
        box->lineEdit()->setModified(false);
        Say([&](DayCorrections& day) { day.*said = HeldText(box->currentText().toStdString()); });
    };
    connect(box, &QComboBox::activated, this, take);
    connect(box->lineEdit(), &QLineEdit::editingFinished, this, [box, take] {
        if (box->lineEdit()->isModified()) {
            take();
        }
    });
    return box;
}

} // namespace zelvia
