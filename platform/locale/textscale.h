// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>

namespace Touch {

/// How much larger than designed the user wants texts: 1 to 2 times. CLOCK_TEXT_SCALE in the environment wins over the
/// desktop's settings portal, which is asked without waiting. GUI thread; needs the application object.
class TextScale : public QObject
{
    Q_OBJECT

public:
    explicit TextScale(QObject *parent = nullptr);
    ~TextScale() override;

    /// What holds where the desktop wants that factor.
    static qreal bounded(qreal factor);
    /// The size, in pixels, of a text designed that large: headings and clocks, which are read as they are, grow less.
    static int pixelSize(int designed, qreal factor);

Q_SIGNALS:
    /// What the desktop wants, bounded: at first, and whenever it changes; maybe the same again.
    void received(qreal factor);
};

} // namespace Touch
