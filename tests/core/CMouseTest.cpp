// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/CMouse.h"

#include "support/TestProgram.h"

#include <QTest>

#include <stdexcept>
#include <vector>

using namespace zelvia;

class CMouseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void ThePointerComesBack();
    void ThePointerOfBeforeTheFirstChangeComesBack();
    void ItComesBackAfterAnError();
    void NestedOnesComeBackInOrder();
    void WithoutAChangeNothingIsTold();

private:
    std::vector<int> told_;
};

void CMouseTest::init()
{
    SetScreenMousePointer(MousePointer::Default);
    told_.clear();
    SetScreenMousePointerHandler([this](i16 pointer) { told_.push_back(pointer.value()); });
}

void CMouseTest::cleanup()
{
    SetScreenMousePointerHandler({});
}

void CMouseTest::ThePointerComesBack()
{
    {
        CMouse mouse;
        mouse.SetPointer(MousePointer::Hourglass);
        QCOMPARE(int{ScreenMousePointer().value()}, 11);
    }
    QCOMPARE(int{ScreenMousePointer().value()}, 0);
    QCOMPARE(told_, (std::vector<int>{11, 0}));
}

void CMouseTest::ThePointerOfBeforeTheFirstChangeComesBack()
{
    SetScreenMousePointer(MousePointer::Custom);
    {
        CMouse mouse;
        mouse.SetPointer(MousePointer::Hourglass);
        mouse.SetPointer(MousePointer::Default);
    }
    QCOMPARE(told_, (std::vector<int>{99, 11, 0, 99}));
}

void CMouseTest::ItComesBackAfterAnError()
{
    const auto routine = [] {
        CMouse mouse;
        mouse.SetPointer(MousePointer::Hourglass);
        throw std::runtime_error("half-way");
    };
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, routine());
    QCOMPARE(int{ScreenMousePointer().value()}, 0);
}

void CMouseTest::NestedOnesComeBackInOrder()
{
    {
        CMouse outer;
        outer.SetPointer(MousePointer::Hourglass);
        {
            CMouse inner;
            inner.SetPointer(MousePointer::Custom);
        }
        QCOMPARE(int{ScreenMousePointer().value()}, 11);
    }
    QCOMPARE(told_, (std::vector<int>{11, 99, 11, 0}));
}

void CMouseTest::WithoutAChangeNothingIsTold()
{
    {
        CMouse mouse;
    }
    QVERIFY(told_.empty());
}

ZELVIA_TEST(CMouseTest)
#include "CMouseTest.moc"
