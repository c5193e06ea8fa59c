// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/style.h"

#include <memory>
#include <optional>
#include <QHash>
#include <QObject>
#include <QPixmap>

namespace Touch {

class ThemeFile;

/**
 * The look of everything: icons, and styles resolved from theme files, which docs/toolkit.md describes. One object for
 * the process, made on first use with the toolkit's own file (theme/base.json) loaded. A file wins over those of the
 * layers below and over an earlier one of its own layer. GUI thread only.
 */
class Theme : public QObject
{
    Q_OBJECT

public:
    enum class Variant { Light, Dark };
    /** Whose a theme file is. The application has the last word, whichever file is read first. */
    enum class Layer { Toolkit, Widgets, Application };

    static Theme &instance();
    ~Theme() override;

    /** Adds a file, or reads it again. On failure nothing is changed, and the error names the file, the line and
     * the key. */
    [[nodiscard]] bool load(const QString &jsonFile, QString *error, Layer layer = Layer::Application);

    Variant variant() const { return m_variant; }
    void setVariant(Variant variant);
    /** Takes the variant of CLOCK_THEME ("light", "dark") where that is set, the one that the desktop asks for, or
     * the one of its palette. */
    void followDesktop();
    /** What the desktop asks for; nothing if it does not say. */
    void setDesktopVariant(std::optional<Variant> variant);

    /** How much larger than designed text is, from 1 to 2. CLOCK_TEXT_SCALE in the environment wins. */
    qreal textScale() const { return m_textScale; }
    void setTextScale(qreal factor);

    /** The style of a widget; inverted, the dark variant's. An unknown style name is as if none was given, and is warned
     * about once. */
    std::shared_ptr<const Style> style(const QString &styleName, const QString &objectName, const QMetaObject *type,
                                       bool inverted = false);
    /** Also by "#objectName" and "StyleName#objectName". */
    bool hasStyle(const QString &styleName) const;
    QStringList styleNames() const;
    /** A named colour of the palette; invalid if there is none. */
    QColor color(const QString &name, bool inverted = false) const;

    /** ":/icons/<id>.svg" in one colour, cached; null if there is no such icon. The size is in logical
     * pixels. */
    QPixmap icon(const QString &id, const QSize &size, const QColor &color, qreal devicePixelRatio = 1);

    /** The icon's counterpart for right-to-left, "<id>-mirrored", or the icon itself if it has none. */
    static QString mirroredIcon(const QString &id);

signals:
    void changed();

private:
    Theme();
    Q_DISABLE_COPY(Theme)

    std::shared_ptr<const Style> resolve(const QStringList &rules, bool inverted) const;
    void applyRule(Style &style, const QString &name, bool inverted, int depth) const;
    bool isDark(bool inverted) const { return m_variant == Variant::Dark || inverted; }
    void announce();
    void warnUnknown(const QString &styleName) const;

    struct Source
    {
        Layer layer;
        QString fileName;
        QByteArray text;
    };

    QList<Source> m_sources; ///< from the lowest layer up
    std::unique_ptr<ThemeFile> m_file;
    Variant m_variant = Variant::Light;
    std::optional<Variant> m_desktopVariant;
    qreal m_textScale = 1;

    // Caches
    QHash<QString, std::shared_ptr<const Style>> m_styles;
    QHash<QString, QPixmap> m_icons;
    mutable QStringList m_warned;
};

} // namespace Touch
