// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/clockwidgets/tonescene.h"

#include "platform/clockwidgets/alerttone.h"
#include "platform/clockwidgets/alerttonebrowsersheet.h"
#include "platform/locale/locale.h"
#include "platform/tones/tonefiller.h"
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/basicsheetheader.h"
#include "platform/toolkit/list.h"
#include "platform/toolkit/theme.h"
#include "tests/support/look/items.h"
#include "tests/support/places.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QSignalSpy>
#include <QTest>

using Touch::Locale;
using Touch::Theme;

QString shipped(const QString &name)
{
    return Places::sharedData("sounds/ring-tones/" + name + ".aac");
}

void addLooks()
{
    QTest::addColumn<Theme::Variant>("variant");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("light") << Theme::Variant::Light << Qt::LeftToRight;
    QTest::newRow("dark") << Theme::Variant::Dark << Qt::LeftToRight;
    QTest::newRow("rtl") << Theme::Variant::Dark << Qt::RightToLeft;
}

ToneScene::ToneScene() = default;

ToneScene::~ToneScene() = default;

bool ToneScene::prepare()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    Locale locale("en_GB");
    const bool hasTexts = locale.installTrCatalog("sounds");
    Locale::setDefault(locale);
    return hasTexts && server.start();
}

bool ToneScene::fillStore()
{
    Tones::ToneFiller filler;
    QSignalSpy filled(&filler, &Tones::ToneFiller::filled);
    filler.start();
    return filled.wait(Patience);
}

bool ToneScene::open()
{
    window = std::make_unique<Touch::ApplicationWindow>();
    window->resize(480, 854);
    window->show();
    if (!QTest::qWaitForWindowExposed(window.get()))
        return false;
    tone = std::make_unique<AlertTone>(shipped("Clock alert 1"));
    sheet = std::make_unique<AlertToneBrowserSheet>(tone.get());
    sheet->appear(window.get());
    return QTest::qWaitFor([this] { return titles().contains("Zebra crossing") && tones()->cellAt(0); }, Patience);
}

bool ToneScene::openInLook()
{
    QFETCH(const Theme::Variant, variant);
    QFETCH(const Qt::LayoutDirection, direction);
    close();
    Theme::instance().setVariant(variant);
    QApplication::setLayoutDirection(direction);
    return open();
}

void ToneScene::close()
{
    sheet.reset();
    window.reset();
}

Touch::List *ToneScene::tones() const
{
    return Support::itemIn<Touch::List>(sheet.get());
}

QStringList ToneScene::titles() const
{
    const auto *model = tones()->itemModel();
    QStringList titles;
    for (int row = 0; row < model->rowCount(); ++row)
        titles += model->index(row, 0).data().toString();
    return titles;
}

QAction *ToneScene::done() const
{
    return qobject_cast<Touch::BasicSheetHeader *>(sheet->headerWidget())->positiveAction();
}

QAction *ToneScene::cancel() const
{
    return qobject_cast<Touch::BasicSheetHeader *>(sheet->headerWidget())->negativeAction();
}

void ToneScene::tap(const QGraphicsItem *item)
{
    QVERIFY(item);
    QTest::mouseClick(window->viewport(), Qt::LeftButton, {}, window->mapFromScene(item->sceneBoundingRect().center()));
}

bool ToneScene::keepPicture(const QString &name, const QString &what)
{
    const QDir folder(QCoreApplication::applicationDirPath() + "/../screenshots");
    QStringList parts{name, QTest::currentDataTag(), what};
    parts.removeAll(QString());
    // What the last event has changed is laid out by the next.
    QCoreApplication::processEvents();
    return QDir().mkpath(folder.path()) && window->grab().toImage().save(folder.filePath(parts.join(u'-') + ".png"));
}
