// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "tests/ringer/soundserver.h"

#include <memory>
#include <QStringList>

class AlertTone;
class AlertToneBrowserSheet;
class QAction;
class QGraphicsItem;
namespace Touch {
class ApplicationWindow;
class List;
} // namespace Touch

/// Milliseconds in which a sound server and a store have done whatever they are asked to.
constexpr auto Patience = 30'000;

/// The path of one of the tones that ship.
QString shipped(const QString &name);

/// Rows of light, dark and mirrored, with the columns "variant" and "direction"; open() shows a scene so.
void addLooks();

/// The tone browser in a window, with the texts in English, and a sound server to hear it by.
class ToneScene
{
public:
    ToneScene();
    ~ToneScene();

    /// Once, before anything else.
    [[nodiscard]] bool prepare();
    /// Has the store know the tones and the user's music.
    [[nodiscard]] bool fillStore();
    /// A new window and sheet, with "Clock alert 1" chosen; waits until the store has told it of "Zebra crossing".
    [[nodiscard]] bool open();
    /// The same, in the look of the test's row; the direction stays until it is set back.
    [[nodiscard]] bool openInLook();
    void close();

    [[nodiscard]] Touch::List *tones() const;
    [[nodiscard]] QStringList titles() const;
    [[nodiscard]] QAction *done() const;
    [[nodiscard]] QAction *cancel() const;
    void tap(const QGraphicsItem *item);
    /// "<name>-<the test's row>-<what>.png", in the folder screenshots of the build.
    [[nodiscard]] bool keepPicture(const QString &name, const QString &what = {});

    Support::SoundServer server;
    std::unique_ptr<Touch::ApplicationWindow> window;
    std::unique_ptr<AlertTone> tone;
    std::unique_ptr<AlertToneBrowserSheet> sheet;
};
