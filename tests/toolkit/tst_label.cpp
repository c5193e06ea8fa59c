// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/label.h"

#include <QTest>

using Touch::Label;

class TestLabel : public QObject
{
    Q_OBJECT

private slots:
    void asksForTheWidthOfItsText_data();
    void asksForTheWidthOfItsText();
};

void TestLabel::asksForTheWidthOfItsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("one font") << QStringLiteral("The alarm could not be deleted");
    QTest::newRow("Arabic") << QStringLiteral("تعذّر حذف المنبّه");
    QTest::newRow("Bengali") << QStringLiteral("অ্যালার্ম মুছে ফেলা যায়নি");
    QTest::newRow("Hindi") << QStringLiteral("अलार्म मिटाया नहीं जा सका");
    QTest::newRow("Persian") << QStringLiteral("زنگ هشدار حذف نشد");
    QTest::newRow("Thai") << QStringLiteral("ลบการปลุกไม่ได้");
}

// One that wraps would break its line otherwise.
void TestLabel::asksForTheWidthOfItsText()
{
    QFETCH(QString, text);
    Label label(text);
    label.setWordWrap(true);
    const qreal width = label.effectiveSizeHint(Qt::PreferredSize).width();
    const auto height
        = [&label](qreal w) { return label.effectiveSizeHint(Qt::PreferredSize, QSizeF(w, -1)).height(); };
    QCOMPARE(height(width), height(2 * width));
    QVERIFY(height(width / 2) > height(width));
}

QTEST_MAIN(TestLabel)
#include "tst_label.moc"
