// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/applicationwindow.h"
#include "platform/toolkit/desktoplook.h"
#include "platform/toolkit/theme.h"
#include "tools/gallery/gallery.h"

#include <memory>
#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>
#include <vector>

using Touch::Theme;

namespace {

const QCommandLineOption variant({"v", "variant"}, "Colours: light or dark (the desktop's).", "variant");
const QCommandLineOption mirrored({"m", "mirrored"}, "Lays everything out from right to left.");
const QCommandLineOption textScale({"t", "text-scale"}, "How much larger text is: 1 to 2.", "factor", "1");
const QCommandLineOption inverted({"i", "inverted"}, "Shows the window in the other variant's colours.");
const QCommandLineOption size({"s", "size"}, "Size of the window: 480x854.", "size", "480x854");
const QCommandLineOption scene("scene", "What to show: page, rows, list, choices, sheet or question (page).", "name",
                               "page");
const QCommandLineOption picture({"p", "picture"}, "Writes a picture into a file and ends.", "file");

void applyLook(const QCommandLineParser &options)
{
    if (options.isSet(variant)) {
        const bool isDark = options.value(variant) == QLatin1String("dark");
        Theme::instance().setVariant(isDark ? Theme::Variant::Dark : Theme::Variant::Light);
    }
    Theme::instance().setTextScale(options.value(textScale).toDouble());
    if (options.isSet(mirrored))
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
}

/** From bottom to top. */
std::vector<std::unique_ptr<Touch::SceneWindow>> sceneWindows(const QString &name)
{
    std::vector<std::unique_ptr<Touch::SceneWindow>> result;
    if (name == QLatin1String("list"))
        result.push_back(std::make_unique<Gallery::ListPage>());
    else if (name == QLatin1String("choices"))
        result.push_back(std::make_unique<Gallery::ChoicesPage>());
    else if (name == QLatin1String("rows"))
        result.push_back(std::make_unique<Gallery::RowsPage>());
    else
        result.push_back(std::make_unique<Gallery::Page>());
    if (name == QLatin1String("sheet"))
        result.push_back(std::make_unique<Gallery::Editor>());
    else if (name == QLatin1String("question"))
        result.push_back(std::make_unique<Gallery::Question>());
    return result;
}

QSize windowSize(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char('x'));
    return {parts.value(0).toInt(), parts.value(1).toInt()};
}

int savePicture(Touch::Window &window, const QString &fileName)
{
    QCoreApplication::processEvents();
    if (window.grab().save(fileName))
        return 0;
    QTextStream(stderr) << "gallery: cannot write " << fileName << Qt::endl;
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QCommandLineParser options;
    options.setApplicationDescription("Shows every control of the toolkit.");
    options.addHelpOption();
    options.addOptions({variant, mirrored, textScale, inverted, size, scene, picture});
    options.process(application);
    // A picture is of what was asked for, wherever it is taken.
    if (options.isSet(picture))
        qputenv("CLOCK_REDUCED_MOTION", "1");
    else
        new Touch::DesktopLook(qApp);
    applyLook(options);

    Touch::ApplicationWindow window;
    window.setInverted(options.isSet(inverted));
    window.resize(windowSize(options.value(size)));
    const auto shown = sceneWindows(options.value(scene));
    for (const auto &sceneWindow : shown)
        sceneWindow->appear(&window);
    window.show();
    return options.isSet(picture) ? savePicture(window, options.value(picture)) : QApplication::exec();
}
