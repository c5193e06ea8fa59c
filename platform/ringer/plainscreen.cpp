// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ringer/plainscreen.h"

#include "platform/locale/textscale.h"
#include "platform/ringer/texts/ringtexts.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace Ringer {

namespace {

// In pixels, before they grow with the user's size of text.
constexpr int TimeSize = 75;
constexpr int SmallestTimeSize = 30;
constexpr int TitleSize = 27;
constexpr int ButtonSize = 24;
constexpr int AnswersApart = 96;
/** Between the text of a button and its edges, both together. */
constexpr int ButtonPadding = 24;

QLabel *createLabel()
{
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    return label;
}

QPushButton *createButton(const char *name)
{
    auto *button = new QPushButton;
    button->setObjectName(QLatin1String(name));
    button->setMinimumHeight(96);
    // However large its text, it is as wide as the screen.
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return button;
}

QFont sized(QFont font, int pixelSize)
{
    font.setPixelSize(pixelSize);
    return font;
}

bool fits(const QLabel *label, const QFont &font)
{
    const QRect room = label->contentsRect();
    const QRect endless(0, 0, room.width(), QWIDGETSIZE_MAX);
    const int lines = label->wordWrap() ? Qt::TextWordWrap : Qt::TextSingleLine;
    const QSize needed = QFontMetrics(font).boundingRect(endless, lines, label->text()).size();
    return needed.width() <= room.width() && needed.height() <= room.height();
}

bool fits(const QPushButton *button, const QFont &font)
{
    return QFontMetrics(font).horizontalAdvance(button->text()) + ButtonPadding <= button->width();
}

/** As large as it shall be or as fits, within these bounds. */
template <typename Widget>
void fitText(Widget *widget, int smallest, int largest)
{
    QFont font = sized(widget->font(), largest);
    while (font.pixelSize() > smallest && !fits(widget, font))
        font.setPixelSize(font.pixelSize() - 1);
    widget->setFont(font);
}

auto withCookie(quint32 cookie)
{
    return [cookie](const Alarm &alarm) { return alarm.cookie == cookie; };
}

} // namespace

PlainScreen::PlainScreen()
    : m_textScale(Touch::TextScale::bounded(1))
    , m_time(createLabel())
    , m_title(createLabel())
    , m_snooze(createButton("snooze"))
    , m_stop(createButton("stop"))
{
    m_time->setObjectName(QStringLiteral("time"));
    m_title->setObjectName(QStringLiteral("title"));
    // A long title never takes the answers off the screen.
    m_title->setWordWrap(true);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    m_time->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setWindowFlag(Qt::WindowStaysOnTopHint);
    resize(480, 854);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->addStretch(1);
    layout->addWidget(m_time);
    layout->addWidget(m_title, 2);
    layout->addWidget(m_snooze);
    layout->addSpacing(AnswersApart);
    layout->addWidget(m_stop);
    connect(m_snooze, &QPushButton::clicked, this, &PlainScreen::snooze);
    connect(m_stop, &QPushButton::clicked, this, &PlainScreen::dismiss);
    const auto *scale = new Touch::TextScale(this);
    connect(scale, &Touch::TextScale::received, this, &PlainScreen::setTextScale);
}

PlainScreen::~PlainScreen() = default;

void PlainScreen::setAnswers(Answers *answers)
{
    m_answers = answers;
}

void PlainScreen::show(const Alarm &alarm)
{
    const auto known = std::find_if(m_alarms.begin(), m_alarms.end(), withCookie(alarm.cookie));
    if (known != m_alarms.end())
        *known = alarm;
    else
        m_alarms.append(alarm);
    refresh();
    m_answers->shown(alarm.cookie);
}

void PlainScreen::hide(quint32 cookie)
{
    m_alarms.removeIf(withCookie(cookie));
    refresh();
}

// Only an answer takes the screen away.
void PlainScreen::closeEvent(QCloseEvent *event)
{
    event->ignore();
    snooze();
}

void PlainScreen::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        snooze();
    else
        QWidget::keyPressEvent(event);
}

void PlainScreen::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitTexts();
}

void PlainScreen::setTextScale(qreal scale)
{
    m_textScale = scale;
    fitTexts();
}

void PlainScreen::fitTexts()
{
    const auto enlarged = [this](int designed) { return Touch::TextScale::pixelSize(designed, m_textScale); };
    fitText(m_snooze, ButtonSize, enlarged(ButtonSize));
    fitText(m_stop, ButtonSize, enlarged(ButtonSize));
    // The time takes as much of the height as it needs, in one line, the title what is left.
    m_time->setFont(sized(m_time->font(), enlarged(TimeSize)));
    layout()->activate();
    fitText(m_time, SmallestTimeSize, enlarged(TimeSize));
    layout()->activate();
    fitText(m_title, TitleSize, enlarged(TitleSize));
}

void PlainScreen::refresh()
{
    setVisible(!m_alarms.isEmpty());
    if (m_alarms.isEmpty())
        return;
    const auto &alarm = m_alarms.first();
    setWindowTitle(RingTexts::application());
    m_time->setText(RingTexts::due(alarm.due));
    m_title->setText(RingTexts::title(alarm.title));
    m_snooze->setText(RingTexts::snooze(alarm.snoozeSeconds));
    m_snooze->setVisible(alarm.snoozeSeconds > 0);
    m_stop->setText(RingTexts::stop());
    showFullScreen();
    fitTexts();
    raise();
    m_snooze->setFocus();
}

void PlainScreen::snooze()
{
    if (!m_alarms.isEmpty() && m_alarms.first().snoozeSeconds > 0)
        m_answers->snooze(m_alarms.first().cookie, m_alarms.first().snoozeSeconds);
}

void PlainScreen::dismiss()
{
    if (!m_alarms.isEmpty())
        m_answers->dismiss(m_alarms.first().cookie);
}

} // namespace Ringer
