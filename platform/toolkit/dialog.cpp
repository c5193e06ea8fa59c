// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/dialog.h"

#include "platform/toolkit/button.h"
#include "platform/toolkit/commontext_p.h"
#include "platform/toolkit/contentlayout_p.h"
#include "platform/toolkit/label.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/pannableviewport.h"
#include "platform/toolkit/stylablewidget.h"

#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QPointer>

namespace Touch {

namespace {

constexpr qreal rise = 16;

} // namespace

Dialog::Dialog(const QString &title, StandardButtons buttons, QGraphicsItem *parent)
    : SceneWindow(parent)
    , m_panel(new StylableWidget(this))
    , m_title(new Label(title, m_panel))
    , m_viewport(new PannableViewport(m_panel))
    , m_centralWidget(new Widget)
    , m_buttonRow(new Widget(m_panel))
{
    m_panel->setStyleName(QStringLiteral("DialogPanel"));
    m_title->setStyleName(QStringLiteral("DialogTitle"));
    m_title->setWordWrap(true);
    m_title->setVisible(!title.isEmpty());
    QSizePolicy policy = m_viewport->sizePolicy();
    policy.setHeightForWidth(true);
    m_viewport->setSizePolicy(policy);
    m_viewport->setWidget(m_centralWidget);
    auto *column = new LinearLayoutPolicy(new Layout(m_panel), Qt::Vertical);
    column->setStyleName(QStringLiteral("DialogPanelLayout"));
    column->addItem(m_title);
    column->addItem(m_viewport);
    column->addItem(m_buttonRow);
    auto *buttonLayout = new Layout(m_buttonRow);
    m_buttonRow->setStyleName(QStringLiteral("DialogButtonRow"));
    m_buttonRow->setVisible(false);
    m_buttonsInRow = new LinearLayoutPolicy(buttonLayout, Qt::Horizontal);
    m_buttonsInRow->setStyleName(QStringLiteral("DialogButtonsLayout"));
    m_buttonsInRow->addStretch();
    m_buttonsInColumn = new LinearLayoutPolicy(buttonLayout, Qt::Vertical);
    (new ContentLayout(this, [this] { arrange(); }))->setContent(m_panel);
    addStandardButtons(buttons);
}

Dialog::Dialog(QGraphicsItem *parent)
    : Dialog(QString(), NoButton, parent)
{ }

Dialog::~Dialog() = default;

QString Dialog::title() const
{
    return m_title->text();
}

void Dialog::setTitle(const QString &title)
{
    if (m_title->text() == title)
        return;
    m_title->setText(title);
    m_title->setVisible(!title.isEmpty());
    arrange();
}

void Dialog::addStandardButtons(StandardButtons buttons)
{
    const auto add = [&](StandardButton button, const QString &text, void (Dialog::*slot)()) {
        if (!buttons.testFlag(button))
            return;
        const bool accepts = button != Cancel;
        m_standardButtons[button]
            = makeButton(text, accepts ? QStringLiteral("DialogButtonAccent") : QStringLiteral("DialogButton"));
        connect(m_standardButtons[button], &Button::clicked, this, slot);
    };
    // What leads on stands at the end.
    add(Cancel, CommonText::cancel(), &Dialog::reject);
    add(Ok, CommonText::ok(), &Dialog::accept);
    add(Done, CommonText::done(), &Dialog::accept);
}

Button *Dialog::addButton(const QString &text)
{
    Button *button = makeButton(text, QStringLiteral("DialogButtonAccent"));
    connect(button, &Button::clicked, this, &Dialog::accept);
    return button;
}

Button *Dialog::makeButton(const QString &text, const QString &styleName)
{
    auto *button = new Button(text, m_buttonRow);
    button->setStyleName(styleName);
    m_buttonsInRow->addItem(button);
    m_buttonsInColumn->addItem(button);
    m_buttonRow->setVisible(true);
    arrange();
    return button;
}

void Dialog::accept()
{
    finish(Accepted);
}

void Dialog::reject()
{
    finish(Rejected);
}

void Dialog::finish(Result result)
{
    if (!isOnDisplay())
        return;
    const QPointer<Dialog> guard(this);
    dismiss();
    if (guard && result == Accepted)
        emit accepted();
    else if (guard)
        emit rejected();
    if (guard)
        emit finished(result);
}

void Dialog::stepBack()
{
    reject();
}

void Dialog::aboutToAppear()
{
    SceneWindow::aboutToAppear();
    m_viewport->setPosition(QPointF(0, 0));
}

void Dialog::startAt(QGraphicsWidget *item)
{
    // The places of new items are known only once they are laid out.
    if (m_centralWidget->layout())
        m_centralWidget->layout()->activate();
    arrange();
    m_viewport->ensureVisible(m_centralWidget->mapRectFromItem(item, item->rect()));
    item->setFocus(Qt::ActiveWindowFocusReason);
}

void Dialog::setTransition(qreal progress)
{
    setOpacity(progress);
    m_panel->setTransform(QTransform::fromTranslate(0, qRound((1 - progress) * rise)));
}

void Dialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Up)
        focusNextPrevChild(event->key() == Qt::Key_Down);
    else
        SceneWindow::keyPressEvent(event);
}

void Dialog::styleChanged()
{
    SceneWindow::styleChanged();
    arrange();
}

void Dialog::arrange()
{
    const QMarginsF margins = m_panel->style().margins;
    const QRectF area = rect().marginsRemoved(margins);
    if (area.isEmpty())
        return;
    const qreal wanted = m_panel->style().preferredSize.width();
    const qreal width = wanted < 0 ? area.width() : qMin(area.width(), wanted);
    const QMarginsF padding = m_panel->style().padding + m_buttonRow->style().padding;
    arrangeButtons(width - padding.left() - padding.right());
    const QSizeF hint = m_panel->effectiveSizeHint(Qt::PreferredSize, QSizeF(width, -1));
    const qreal height = qMin(area.height(), hint.height());
    m_panel->setGeometry(QRectF(qRound(area.center().x() - width / 2), qRound(area.center().y() - height / 2),
                                qRound(width), qRound(height)));
}

void Dialog::arrangeButtons(qreal width)
{
    const bool fits = m_buttonsInRow->contentSize(Qt::PreferredSize, -1).width() <= width;
    m_buttonsInRow->layout()->setPolicy(fits ? m_buttonsInRow : m_buttonsInColumn);
}

bool Dialog::isOutside(const QGraphicsSceneMouseEvent *event) const
{
    return !m_panel->geometry().contains(event->pos());
}

void Dialog::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    m_isPressedOutside = isOutside(event);
    event->accept();
}

void Dialog::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_isPressedOutside && isOutside(event))
        reject();
}

} // namespace Touch
