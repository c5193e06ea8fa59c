// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/worldclock.h"

#include "platform/clockwidgets/clockface_p.h"
#include "platform/clockwidgets/parts_p.h"
#include "platform/clockwidgets/timetext_p.h"
#include "platform/clockwidgets/wallclockticker_p.h"
#include "platform/locale/locale.h"

#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
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
    : StylableWidget(parent)
    , m_ticker(std::move(ticker))
    , m_clockFace(std::make_unique<ClockFace>())
    , m_face(rememberedFace())
    , m_now(m_ticker->now())
{
    loadClockTheme();
    setFocusPolicy(Qt::TabFocus);
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

void WorldClock::showOtherFace()
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
    StylableWidget::styleChanged();
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
    painter->save();
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
    const TimeText text = timeText(Locale::getDefault(), m_now.time());
    const auto digits = partStyle(*this, QStringLiteral("ClockDigits"));
    const auto marker = partStyle(*this, QStringLiteral("ClockMarker"));
    const qreal digitsWidth = textWidth(*digits, text.digits);
    const qreal markerWidth = text.marker.isEmpty() ? 0 : textWidth(*marker, text.marker);
    const qreal gap = text.marker.isEmpty() ? 0 : marker->spacing;
    const qreal left = rect.center().x() - (digitsWidth + gap + markerWidth) / 2;
    const bool markerLeft = text.markerFirst != (layoutDirection() == Qt::RightToLeft);
    const QRectF digitsRect(markerLeft ? left + markerWidth + gap : left, rect.top(), digitsWidth + 1, rect.height());
    drawPart(painter, digitsRect, Qt::AlignCenter, *digits, text.digits);
    if (text.marker.isEmpty())
        return;
    // On the baseline of the digits.
    const QFontMetricsF digitMetrics(digits->font());
    const QFontMetricsF markerMetrics(marker->font());
    const qreal baseline = rect.center().y() + (digitMetrics.ascent() - digitMetrics.descent()) / 2;
    const QRectF markerRect(markerLeft ? left : left + digitsWidth + gap, baseline - markerMetrics.ascent(),
                            markerWidth + 1, markerMetrics.height());
    drawPart(painter, markerRect, Qt::AlignCenter, *marker, text.marker);
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

QStringList WorldClock::accessibleActions() const
{
    return {QAccessibleActionInterface::pressAction()};
}

void WorldClock::doAccessibleAction(const QString &)
{
    showOtherFace();
}

void WorldClock::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    event->setAccepted(event->button() == Qt::LeftButton);
}

void WorldClock::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (rect().contains(event->pos()))
        showOtherFace();
}

void WorldClock::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        showOtherFace();
    else
        StylableWidget::keyPressEvent(event);
}
