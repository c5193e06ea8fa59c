// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/parts_p.h"
#include "platform/clockwidgets/toneitem_p.h"
#include "platform/toolkit/theme.h"
#include "tests/clockwidgets/stage.h"

#include <QFontMetricsF>
#include <QTest>

using Touch::Theme;

class TestToneItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void hasRoomForTwoLinesAtEverySizeOfText();
    void theMarkGrowsWithTheText();
    void theEndOfALongTitleIsSeenInLargeText();
};

void TestToneItem::cleanup()
{
    Theme::instance().setTextScale(1);
}

void TestToneItem::hasRoomForTwoLinesAtEverySizeOfText()
{
    const ToneItem item;
    for (const qreal scale : {1.0, 1.3, 2.0}) {
        Theme::instance().setTextScale(scale);
        qreal texts = 0;
        for (const char *style : {"ToneTitle", "ToneOrigin"})
            texts += QFontMetricsF(partStyle(item, QLatin1String(style))->font()).height();
        const qreal room = item.effectiveSizeHint(Qt::PreferredSize).height();
        QVERIFY2(room >= texts, qPrintable(QStringLiteral("%1 for %2 at %3").arg(room).arg(texts).arg(scale)));
    }
}

void TestToneItem::theMarkGrowsWithTheText()
{
    auto *item = new ToneItem;
    Stage stage(item, {0, 0, 480, 96});
    item->setTone("/tones/tea.ogg", "", "");
    QVERIFY(stage.show());
    const auto inkedRows = [&stage] {
        const QImage picture = stage.window.grab().toImage();
        int rows = 0;
        for (int y = 0; y < 96; ++y) {
            bool isInked = false;
            for (int x = 10; x < 80 && !isInked; ++x)
                isInked = picture.pixel(x, y) != picture.pixel(2, 2);
            rows += isInked ? 1 : 0;
        }
        return rows;
    };
    const int usual = inkedRows();
    QVERIFY(usual > 10);
    Theme::instance().setTextScale(2);
    QTRY_VERIFY(inkedRows() > 1.3 * usual);
}

void TestToneItem::theEndOfALongTitleIsSeenInLargeText()
{
    Theme::instance().setTextScale(2);
    auto *item = new ToneItem;
    Stage stage(item, {0, 0, 360, 96});
    item->setTone("/tones/tea.ogg", "Marimba Steps in A", "");
    QVERIFY(stage.show());
    const QImage inA = stage.window.grab().toImage();
    item->setTone("/tones/tea.ogg", "Marimba Steps in B", "");
    QVERIFY(stage.window.grab().toImage() != inA);
}

QTEST_MAIN(TestToneItem)
#include "tst_toneitem.moc"
