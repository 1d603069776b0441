// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Numbers.h"
#include "core/Text.h"
#include "diary/CategoryStatistics.h"
#include "diary/CategoryTexts.h"
#include "diary/ListaOrdinata.h"
#include "diary/RecordGiorno.h"
#include "toolkit/Button.h"
#include "toolkit/Form.h"
#include "toolkit/Label.h"
#include "toolkit/ListBox.h"
#include "toolkit/ListView.h"

#include <functional>
#include <optional>

namespace zelvia
{

/// Opens the chart of the statistic last counted, under the title shown.
using ChartOpener = std::function<void(const Text& title)>;

/// The window of one statistic: its values ranked and, over them for a while, the sorted times of the days of one
/// value. It is not emptied by a further statistic that finds it open.
class frmStatistiche1 : public Form, public StatisticView
{
    Q_OBJECT

public:
    explicit frmStatistiche1(ChartOpener openChart);

    Control& FocusSink() override { return *lstStatistica; }

    void SetTitle(TextView title) override { lblTitolo->SetCaption(title); }
    void AddLine(TextView line) override { lstStatistica->AddItem(line); }

    void cmdTempiLO_Click();
    void cmGrafico_Click();
    void cmdStampa_Click();
    void lvListaOrdinata_LostFocus();

    Label* lblTitolo;
    Button* cmdStatitolo;
    Button* cmdStatfre;
    ListBox* lstStatistica;
    Button* cmdTempiLO;
    Button* cmGrafico;
    Button* cmdStampa;
    Button* cmdEsci;
    ListView* lvListaOrdinata;

protected:
    /// A click outside the controls hides the times as one on a control does.
    void mousePressEvent(QMouseEvent* event) override;

private:
    using DayTest = std::function<bool(const RecordGiorno&)>;

    void Build();

    void ListaWOrdinata(const Text& value);
    void ListavOrdinata(i16 value);
    DayTest DaysOf(const Text& value);
    void BeginTimes();
    void FillTimes(const DayTest& chosen);

    /// A piece of a row's text as a number; one that can't be read is reported and counts as 0.
    static i16 Scomponi(TextView title, i16 (*piece)(TextView), TextView text);
    i16 ScomponiKm(TextView text) { return Scomponi("ScomponiKm - ERRORE : ", KmPart, text); }
    i16 ScomponiMetri(TextView text) { return Scomponi("ScomponiMetri - ERRORE : ", MetresPart, text); }
    i16 ScomponiVolte(TextView text) { return Scomponi("ScomponiVolte - ERRORE : ", TimesPart, text); }
    i16 ScomponiDistanza(TextView text) { return Scomponi("ScomponiDistanza - ERRORE : ", DistancePart, text); }
    i16 ScomponiQuante(TextView text) { return Scomponi("ScomponiQuante - ERRORE : ", MinutesPart, text); }
    i16 ScomponiTempi(TextView text) { return Scomponi("ScomponiTempi - ERRORE : ", SecondsPart, text); }

    ChartOpener openChart_;
    std::optional<ListaOrdinata> ListaTempi; ///< Alive while the times are shown.
};

} // namespace zelvia
