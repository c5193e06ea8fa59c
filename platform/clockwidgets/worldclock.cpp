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
constexpr auto DateStyle = "ClockDate";
constexpr auto ZoneStyle = "ClockZone";

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

/// A face lower than that has the date beside it.
constexpr qreal SmallestHeightAboveDate = 128;

} // namespace

/// A text in one line.
struct WorldClock::Line
{
    std::shared_ptr<const Touch::Style> style;
    QString text;
    qreal height; ///< leaves room for the user's size of text

    Line(const WorldClock &clock, const char *styleName, const QString &shown, qreal usualHeight)
        : style(partStyle(clock, QLatin1String(styleName)))
        , text(shown)
        , height(qMax(usualHeight, QFontMetricsF(style->font()).height()))
    { }

    // Rather smaller than cut off.
    void paint(QPainter &painter, const QRectF &rect, Qt::Alignment alignment) const
    {
        Touch::Style fitting = *style;
        fitting.pixelSize = int(style->pixelSize * qMin(1.0, rect.width() / textWidth(*style, text)));
        drawPart(painter, rect, alignment, fitting, text);
    }
};

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
    const QRectF area = paddedRect();
    const Line date(*this, DateStyle, dateText(), DateHeight);
    const Line zone(*this, ZoneStyle, zoneText(), ZoneHeight);
    const qreal below = date.height + zone.height + style().spacing;
    if (area.height() - below >= SmallestHeightAboveDate || area.width() < 2 * area.height())
        paintBelowEachOther(*painter, area, date, zone);
    else
        paintBesideEachOther(*painter, area, date, zone);
    painter->restore();
    paintFocusRing(painter);
}

void WorldClock::paintBelowEachOther(QPainter &painter, const QRectF &area, const Line &date, const Line &zone) const
{
    QRectF place(area.left(), area.bottom() - zone.height, area.width(), zone.height);
    zone.paint(painter, place, Qt::AlignCenter);
    place.setTop(place.top() - date.height);
    place.setHeight(date.height);
    date.paint(painter, place, Qt::AlignCenter);
    paintFace(painter, QRectF(area.topLeft(), QPointF(area.right(), place.top() - style().spacing)));
}

// Face and texts stand in the middle together.
void WorldClock::paintBesideEachOther(QPainter &painter, const QRectF &area, const Line &date, const Line &zone) const
{
    const qreal gap = 1.5 * style().spacing;
    const qreal faceWidth = m_face == Face::Analogue ? area.height() : area.width() / 2 - gap;
    const qreal wanted = qMax(textWidth(*date.style, date.text), textWidth(*zone.style, zone.text)) + 1;
    const qreal textsWidth = qMin(wanted, area.width() - faceWidth - gap);
    const qreal left = area.center().x() - (faceWidth + gap + textsWidth) / 2;
    paintFace(painter, mirroredIn(*this, QRectF(left, area.top(), faceWidth, area.height())));
    QRectF place(left + faceWidth + gap, area.center().y() - (date.height + zone.height) / 2, textsWidth, date.height);
    date.paint(painter, mirroredIn(*this, place), Qt::AlignLeft | Qt::AlignVCenter);
    place.setTop(place.bottom());
    place.setHeight(zone.height);
    zone.paint(painter, mirroredIn(*this, place), Qt::AlignLeft | Qt::AlignVCenter);
}

void WorldClock::paintFace(QPainter &painter, const QRectF &rect) const
{
    if (m_face == Face::Analogue)
        m_clockFace->paint(painter, rect.center(), qMin(rect.width(), rect.height()), m_now.time(), isOnDisplay());
    else
        paintDigits(painter, rect);
}

void WorldClock::paintDigits(QPainter &painter, const QRectF &rect) const
{
    Touch::Style digits = *partStyle(*this, QStringLiteral("ClockDigits"));
    // Digits reach neither up nor down: their line has room to spare.
    const qreal share = qMin(1.0, rect.height() / digits.pixelSize);
    digits.pixelSize = int(digits.pixelSize * share);
    const TimeLook look{std::make_shared<Touch::Style>(digits), partStyle(*this, QStringLiteral("ClockMarker"))};
    const TimeText text = timeText(Locale::getDefault(), m_now.time());
    QRectF place = rect;
    place.setWidth(timeWidth(look, text));
    place.moveCenter(rect.center());
    drawTime(painter, place, look, text);
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
