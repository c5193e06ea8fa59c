// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/combobox.h"
#include "tests/support/logcapture.h"
#include "tools/gallery/gallery.h"

#include <memory>
#include <QApplication>
#include <QOpenGLWidget>
#include <QTest>

using namespace Touch;

namespace {

/** How much of two pictures differs by more than what smooths an edge. */
qreal partThatDiffers(const QImage &a, const QImage &b)
{
    constexpr int softness = 48;
    if (a.size() != b.size())
        return 1;
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            count += qAbs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > softness ? 1 : 0;
    }
    return qreal(count) / (a.width() * a.height());
}

} // namespace

/**
 * What windows paint on. Under X with Mesa there is OpenGL, also in software; without a display there is none. The test
 * runs in both.
 */
class TestViewport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void isOfPixelsUnlessAskedOtherwise_data();
    void isOfPixelsUnlessAskedOtherwise();
    void isOfOpenGlWhereItIsAskedForAndThere();
    void paintsTheSame();
    void takesInput();

private:
    std::unique_ptr<ApplicationWindow> makeWindow();

    const bool m_hasDisplay = QGuiApplication::platformName() == QLatin1String("xcb");
};

void TestViewport::initTestCase()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
}

void TestViewport::cleanup()
{
    qunsetenv("CLOCK_RENDERER");
}

std::unique_ptr<ApplicationWindow> TestViewport::makeWindow()
{
    auto window = std::make_unique<ApplicationWindow>();
    (new Gallery::RowsPage)->appear(window.get(), SceneWindow::DestroyWhenDone);
    window->show();
    return QTest::qWaitForWindowExposed(window.get()) ? std::move(window) : nullptr;
}

void TestViewport::isOfPixelsUnlessAskedOtherwise_data()
{
    QTest::addColumn<QByteArray>("renderer");
    QTest::newRow("unset") << QByteArray();
    QTest::newRow("raster") << QByteArray("raster");
    QTest::newRow("unknown") << QByteArray("crayons");
}

void TestViewport::isOfPixelsUnlessAskedOtherwise()
{
    QFETCH(QByteArray, renderer);
    if (!renderer.isEmpty())
        qputenv("CLOCK_RENDERER", renderer);
    const ApplicationWindow window;
    QVERIFY(!qobject_cast<QOpenGLWidget *>(window.viewport()));
    QCOMPARE(window.viewportUpdateMode(), QGraphicsView::MinimalViewportUpdate);
}

void TestViewport::isOfOpenGlWhereItIsAskedForAndThere()
{
    qputenv("CLOCK_RENDERER", "opengl");
    const Support::LogCapture log;
    const ApplicationWindow window;
    const ApplicationWindow other;
    QCOMPARE(qobject_cast<QOpenGLWidget *>(window.viewport()) != nullptr, m_hasDisplay);
    QCOMPARE(qobject_cast<QOpenGLWidget *>(other.viewport()) != nullptr, m_hasDisplay);
    const QStringList said = log.lines(QtWarningMsg).filter(QStringLiteral("CLOCK_RENDERER"));
    QCOMPARE(said.size(), m_hasDisplay ? 0 : 1);
}

void TestViewport::paintsTheSame()
{
    const auto plain = makeWindow();
    QVERIFY(plain);
    const QImage wanted = plain->grab().toImage();
    qputenv("CLOCK_RENDERER", "opengl");
    const auto window = makeWindow();
    QVERIFY(window);
    const qreal differing = partThatDiffers(window->grab().toImage(), wanted);
    QVERIFY2(differing < 0.01, qPrintable(QString::number(differing)));
}

void TestViewport::takesInput()
{
    qputenv("CLOCK_RENDERER", "opengl");
    const auto window = makeWindow();
    QVERIFY(window);
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    const auto *page = static_cast<const Gallery::RowsPage *>(window->topSceneWindow());
    const QPoint choice = window->mapFromScene(page->choice->sceneBoundingRect().center());
    QTest::mouseClick(window->viewport(), Qt::LeftButton, {}, choice);
    QVERIFY(page->choice->isPopupOpen());
    QTest::keyClick(window.get(), Qt::Key_Escape);
    QVERIFY(!page->choice->isPopupOpen());
}

int main(int argc, char **argv)
{
    // Without the display that this process may have been started on, the platform without windows has no OpenGL.
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen")
        qunsetenv("DISPLAY");
    const QApplication application(argc, argv);
    TestViewport test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_viewport.moc"
