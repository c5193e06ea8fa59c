// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/theme.h"

#include "platform/locale/textscale.h"
#include "platform/toolkit/themefile_p.h"

#include <algorithm>
#include <QFile>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QMetaObject>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

// Resources of a static library are linked in only if they are asked for, and not from within a namespace.
static void initToolkitResources()
{
    Q_INIT_RESOURCE(toolkit);
}

namespace Touch {

Q_LOGGING_CATEGORY(lcTheme, "touch.theme")

namespace {

constexpr int maxExtends = 8;
constexpr int maxIcons = 200;

/** ":Widget", ":Button", ":Switch" for a switch: base first, without namespaces. */
QStringList classRules(const QMetaObject *type)
{
    QStringList rules;
    for (; type; type = type->superClass()) {
        const QString name = QString::fromLatin1(type->className());
        rules.prepend(QLatin1Char(':') + name.mid(name.lastIndexOf(QLatin1Char(':')) + 1));
    }
    return rules;
}

QString iconFile(const QString &id)
{
    return QStringLiteral(":/icons/%1.svg").arg(id);
}

QPixmap renderIcon(const QString &id, const QSize &size, const QColor &color, qreal devicePixelRatio)
{
    const QString file = iconFile(id);
    if (!QFile::exists(file) || size.isEmpty())
        return {};
    QSvgRenderer renderer(file);
    QPixmap pixmap(size * devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), color);
    painter.end();
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

} // namespace

Theme &Theme::instance()
{
    static Theme theme;
    return theme;
}

Theme::Theme()
    : m_file(std::make_unique<ThemeFile>())
{
    initToolkitResources();
    QString error;
    if (!load(QStringLiteral(":/touch/theme/base.json"), &error, Layer::Toolkit))
        qCCritical(lcTheme).noquote() << "The toolkit's own theme is damaged:" << error;
    followDesktop();
    setTextScale(1);
    // Pixmaps must not outlive the application object.
    qAddPostRoutine([] { Theme::instance().m_icons.clear(); });
}

Theme::~Theme() = default;

bool Theme::load(const QString &jsonFile, QString *error, Layer layer)
{
    QFile file(jsonFile);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(jsonFile, file.errorString());
        return false;
    }
    QList<Source> sources = m_sources;
    sources.removeIf([&](const Source &source) { return source.fileName == jsonFile; });
    const auto above
        = std::find_if(sources.begin(), sources.end(), [layer](const Source &source) { return source.layer > layer; });
    sources.insert(above, {layer, jsonFile, file.readAll()});
    auto merged = std::make_unique<ThemeFile>();
    for (const Source &source : std::as_const(sources)) {
        if (!merged->merge(source.fileName, source.text, error))
            return false;
    }
    m_sources = sources;
    m_file = std::move(merged);
    announce();
    return true;
}

void Theme::announce()
{
    m_styles.clear();
    emit changed();
}

void Theme::setVariant(Variant variant)
{
    if (m_variant == variant)
        return;
    m_variant = variant;
    announce();
}

void Theme::setDesktopVariant(std::optional<Variant> variant)
{
    m_desktopVariant = variant;
    followDesktop();
}

void Theme::followDesktop()
{
    const QByteArray wanted = qgetenv("CLOCK_THEME");
    if (wanted == "dark" || wanted == "light") {
        setVariant(wanted == "dark" ? Variant::Dark : Variant::Light);
        return;
    }
    const QColor window = QGuiApplication::palette().color(QPalette::Window);
    setVariant(m_desktopVariant.value_or(window.lightness() < 128 ? Variant::Dark : Variant::Light));
}

void Theme::setTextScale(qreal factor)
{
    const qreal scale = TextScale::bounded(factor);
    if (qFuzzyCompare(m_textScale, scale))
        return;
    m_textScale = scale;
    announce();
}

std::shared_ptr<const Style> Theme::style(const QString &styleName, const QString &objectName, const QMetaObject *type,
                                          bool inverted)
{
    const QString key = QLatin1String(type->className()) + QLatin1Char('|') + styleName + QLatin1Char('#') + objectName
        + (inverted ? QLatin1String("|i") : QLatin1String());
    std::shared_ptr<const Style> &cached = m_styles[key];
    if (cached)
        return cached;
    const QString pair = styleName + QLatin1Char('#') + objectName;
    if (!styleName.isEmpty() && !hasStyle(styleName) && !m_file->rules().contains(pair))
        warnUnknown(styleName);
    QStringList rules = classRules(type);
    if (!objectName.isEmpty())
        rules << QLatin1Char('#') + objectName;
    rules << styleName;
    if (!styleName.isEmpty() && !objectName.isEmpty())
        rules << pair;
    cached = resolve(rules, inverted);
    return cached;
}

bool Theme::hasStyle(const QString &styleName) const
{
    return m_file->rules().contains(styleName);
}

QStringList Theme::styleNames() const
{
    QStringList names = m_file->rules().keys();
    names.removeIf([](const QString &name) { return name.startsWith(QLatin1Char(':')); });
    names.sort();
    return names;
}

QColor Theme::color(const QString &name, bool inverted) const
{
    return m_file->palette(isDark(inverted)).value(name);
}

std::shared_ptr<const Style> Theme::resolve(const QStringList &rules, bool inverted) const
{
    auto style = std::make_shared<Style>();
    for (const QString &rule : rules)
        applyRule(*style, rule, inverted, 0);
    if (m_textScale != 1)
        style->scaleText(m_textScale);
    return style;
}

void Theme::applyRule(Style &style, const QString &name, bool inverted, int depth) const
{
    const auto found = m_file->rules().constFind(name);
    if (found == m_file->rules().constEnd() || depth > maxExtends)
        return;
    const QString extends = QStringLiteral("extends");
    const QString base = (*found)[extends].toString();
    if (!base.isEmpty() && !hasStyle(base))
        warnUnknown(base);
    applyRule(style, base, inverted, depth + 1);
    for (auto it = found->begin(); it != found->end(); ++it) {
        // Checked when the file was read.
        if (it.key() != extends)
            (void)applyProperty(style, it.key(), it.value(), m_file->palette(isDark(inverted)));
    }
}

void Theme::warnUnknown(const QString &styleName) const
{
    if (m_warned.contains(styleName))
        return;
    m_warned << styleName;
    qCWarning(lcTheme).noquote() << "No style is named" << styleName;
}

QString Theme::mirroredIcon(const QString &id)
{
    const QString mirrored = id + QStringLiteral("-mirrored");
    return QFile::exists(iconFile(mirrored)) ? mirrored : id;
}

QPixmap Theme::icon(const QString &id, const QSize &size, const QColor &color, qreal devicePixelRatio)
{
    const QString key = QStringLiteral("%1|%2x%3|%4|%5")
                            .arg(id)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(color.rgba(), 8, 16)
                            .arg(devicePixelRatio);
    const auto found = m_icons.constFind(key);
    if (found != m_icons.constEnd())
        return *found;
    const QPixmap pixmap = renderIcon(id, size, color, devicePixelRatio);
    if (pixmap.isNull())
        qCWarning(lcTheme).noquote() << "There is no icon" << id;
    if (m_icons.size() >= maxIcons)
        m_icons.clear();
    m_icons.insert(key, pixmap);
    return pixmap;
}

} // namespace Touch
