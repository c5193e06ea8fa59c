// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/worldclock.h"

#include "platform/clockwidgets/clockface_p.h"
#include "platform/clockwidgets/parts_p.h"
#include "platform/clockwidgets/timetext_p.h"
#include "platform/clockwidgets/wallclockticker_p.h"
#include "platform/locale/locale.h"

#include <QPainter>
#include <QSettings>

using Touch::Locale;

namespace {

constexpr qreal DateHeight = 28;
constexpr qreal ZoneHeight = 20;

constexpr auto FaceKey = "WorldClock/face";

QSettings settings()
{
    return {QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Astel"), QStringLiteral("clockwidgets")};
}

QString faceName(WorldClock::Face face)
{
    return face == WorldClock::Face::Digital ? QStringLiteral("digital") : QStringLiteral("analogue");
}

WorldClock::Face rememberedFace()
{
    using Face = WorldClock::Face;
    return settings().value(FaceKey).toString() == faceName(Face::Digital) ? Face::Digital : Face::Analogue;
}

/// A line's height that leaves room for the user's size of text.
qreal lineHeight(const Touch::Style &style, qreal usual)
{
    return qMax(usual, QFontMetricsF(style.font()).height());
}

} // namespace

WorldClock::WorldClock(QGraphicsItem *parent)
    : WorldClock(std::make_unique<WallClockTicker>(), parent)
{ }

WorldClock::WorldClock(std::unique_ptr<ClockTicker> ticker, QGraphicsItem *parent)
    : Pressable(parent)
    , m_ticker(std::move(ticker))
    , m_clockFace(std::make_unique<ClockFace>())
    , m_face(rememberedFace())
    , m_now(m_ticker->now())
{
    loadClockTheme();
    connect(m_ticker.get(), &ClockTicker::ticked, this, &WorldClock::tick);
    connect(&Locale::getDefault(), &Locale::settingsChanged, this, &WorldClock::localeChanged);
    applyStyle();
    localeChanged();
}

WorldClock::~WorldClock() = default;

void WorldClock::setFace(Face face)
{
    if (m_face == face)
        return;
    m_face = face;
    if (isOnDisplay())
        startTicking();
    update();
    Q_EMIT faceChanged(face);
}

void WorldClock::tapped()
{
    setFace(m_face == Face::Analogue ? Face::Digital : Face::Analogue);
    settings().setValue(FaceKey, faceName(m_face));
}

void WorldClock::enterDisplay()
{
    startTicking();
}

void WorldClock::exitDisplay()
{
    m_ticker->stop();
}

void WorldClock::startTicking()
{
    m_ticker->start(m_face == Face::Analogue ? ClockTicker::Beat::Second : ClockTicker::Beat::Minute);
    tick();
}

void WorldClock::tick()
{
    m_now = m_ticker->now();
    update();
}

void WorldClock::localeChanged()
{
    const Locale &locale = Locale::getDefault();
    m_clockFace->setNumerals({localeDigits(locale, 12, 1), localeDigits(locale, 3, 1), localeDigits(locale, 6, 1),
                              localeDigits(locale, 9, 1)});
    update();
}

void WorldClock::styleChanged()
{
    Pressable::styleChanged();
    applyStyle();
}

void WorldClock::applyStyle()
{
    const auto numerals = partStyle(*this, QStringLiteral("ClockNumeral"));
    const Touch::Style &look = style();
    m_clockFace->setLook({look.background, look.borderColor, look.promptColor, look.color, look.accentColor,
                          numerals->font(), numerals->color});
}

void WorldClock::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    if (isDown())
        paintBackground(painter, style().pressedBackground, false);
    painter->save();
    painter->setLayoutDirection(layoutDirection());
    QRectF area = paddedRect();
    const QString dateStyle = QStringLiteral("ClockDate");
    const QString zoneStyle = QStringLiteral("ClockZone");
    QRectF zone = area;
    zone.setTop(area.bottom() - lineHeight(*partStyle(*this, zoneStyle), ZoneHeight));
    QRectF date(area.left(), 0, area.width(), lineHeight(*partStyle(*this, dateStyle), DateHeight));
    date.moveBottom(zone.top());
    area.setBottom(date.top() - style().spacing);
    if (m_face == Face::Analogue)
        m_clockFace->paint(*painter, area.center(), qMin(area.width(), area.height()), m_now.time(), isOnDisplay());
    else
        paintDigits(*painter, area);
    paintLine(*painter, date, dateStyle, dateText());
    paintLine(*painter, zone, zoneStyle, zoneText());
    painter->restore();
    paintFocusRing(painter);
}

void WorldClock::paintDigits(QPainter &painter, const QRectF &rect) const
{
    const TimeLook look{partStyle(*this, QStringLiteral("ClockDigits")),
                        partStyle(*this, QStringLiteral("ClockMarker"))};
    const TimeText text = timeText(Locale::getDefault(), m_now.time());
    QRectF place = rect;
    place.setWidth(timeWidth(look, text));
    place.moveCenter(rect.center());
    drawTime(painter, place, look, text);
}

void WorldClock::paintLine(QPainter &painter, const QRectF &rect, const QString &styleName, const QString &text) const
{
    Touch::Style style = *partStyle(*this, styleName);
    // Rather smaller than cut off.
    style.pixelSize = int(style.pixelSize * qMin(1.0, rect.width() / textWidth(style, text)));
    drawPart(painter, rect, Qt::AlignCenter, style, text);
}

QString WorldClock::dateText() const
{
    const Locale &locale = Locale::getDefault();
    return locale.formatDateTimeICU(m_now, locale.icuFormatString(QStringLiteral("MMMMEEEEd")));
}

QString WorldClock::zoneText() const
{
    return Locale::getDefault().formatDateTimeICU(m_now, QStringLiteral("zzzz"));
}

QString WorldClock::shownText() const
{
    const QString time = timeText(Locale::getDefault(), m_now.time()).whole();
    return QStringList{time, dateText(), zoneText()}.join(QLatin1String(", "));
}
