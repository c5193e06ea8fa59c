// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/textedit.h"

#include "platform/toolkit/inputmethodstate.h"
#include "platform/toolkit/lineedit_p.h"
#include "platform/toolkit/lineeditproxy_p.h"
#include "platform/toolkit/style.h"

#include <QGraphicsSceneMouseEvent>

namespace Touch {

namespace {

/** What QLineEdit keeps free before and behind its text. */
constexpr qreal LineMargin = 2;

QPalette editPalette(const Style &style)
{
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::transparent);
    palette.setColor(QPalette::Window, Qt::transparent);
    palette.setColor(QPalette::Text, style.color);
    palette.setColor(QPalette::PlaceholderText, style.promptColor);
    palette.setColor(QPalette::Highlight, style.accentColor);
    palette.setColor(QPalette::HighlightedText, style.checkedColor);
    palette.setColor(QPalette::Disabled, QPalette::Text, style.disabledColor);
    return palette;
}

} // namespace

TextEdit::TextEdit(const QString &text, QGraphicsItem *parent)
    : Widget(parent)
    , m_proxy(new LineEditProxy(this))
    , m_edit(new LineEdit(text))
{
    m_edit->setFrame(false);
    m_edit->setAttribute(Qt::WA_TranslucentBackground);
    m_edit->setContextMenuPolicy(Qt::NoContextMenu);
    m_proxy->setWidget(m_edit);
    // The field hands on the focus it is given; Tab goes to the line edit itself.
    setFlag(ItemIsFocusable);
    setFocusProxy(m_proxy);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(&InputMethodState::instance(), &InputMethodState::extendedAttributeChanged, this, &TextEdit::followToolbar);
    connect(m_edit, &QLineEdit::textChanged, this, &TextEdit::fitFont);
    connect(m_edit, &QLineEdit::textChanged, this, &TextEdit::textChanged);
    connect(m_edit, &QLineEdit::returnPressed, this, &TextEdit::returnPressed);
    connect(m_proxy, &LineEditProxy::gainedFocus, this, [this](Qt::FocusReason reason) {
        update();
        emit gainedFocus(reason);
    });
    connect(m_proxy, &LineEditProxy::lostFocus, this, [this](Qt::FocusReason reason) {
        update();
        emit lostFocus(reason);
    });
}

TextEdit::TextEdit(QGraphicsItem *parent)
    : TextEdit(QString(), parent)
{ }

TextEdit::~TextEdit()
{
    // The proxy goes later, and with it the focus, when nothing here can take note of that any more.
    m_proxy->disconnect(this);
    m_edit->disconnect(this);
}

QString TextEdit::text() const
{
    return m_edit->text();
}

void TextEdit::setText(const QString &text)
{
    m_edit->setText(text);
}

QString TextEdit::prompt() const
{
    return m_edit->placeholderText();
}

void TextEdit::setPrompt(const QString &prompt)
{
    m_edit->setPlaceholderText(prompt);
    fitFont();
}

int TextEdit::maxLength() const
{
    return m_edit->maxLength();
}

void TextEdit::setMaxLength(int length)
{
    m_edit->setMaxLength(length);
}

int TextEdit::cursorPosition() const
{
    return m_edit->cursorPosition();
}

void TextEdit::setCursorPosition(int position)
{
    m_edit->setCursorPosition(position);
}

QString TextEdit::selectedText() const
{
    return m_edit->selectedText();
}

void TextEdit::commit()
{
    m_edit->commit();
}

void TextEdit::attachToolbar(int id)
{
    m_toolbar = id;
    followToolbar();
}

void TextEdit::followToolbar()
{
    m_edit->setEnterKeyType(InputMethodState::instance().enterKeyType(m_toolbar));
}

QAccessible::Role TextEdit::accessibleRole() const
{
    return QAccessible::EditableText;
}

QString TextEdit::shownText() const
{
    return prompt();
}

void TextEdit::styleChanged()
{
    m_isStyled = false;
    Widget::styleChanged();
    // Not before there is a scene: the style may still change several times until then.
    if (scene())
        applyStyle();
}

void TextEdit::applyStyle()
{
    if (m_isStyled)
        return;
    m_isStyled = true;
    m_edit->setPalette(editPalette(style()));
    // The line edit follows its text; when mirrored, any text starts on the right.
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    m_edit->setAlignment(Qt::AlignVCenter | (isMirrored ? Qt::AlignRight | Qt::AlignAbsolute : Qt::AlignLeft));
    placeEdit();
}

void TextEdit::placeEdit()
{
    m_proxy->setGeometry(paddedRect());
    fitFont();
}

// What is typed can be scrolled, a prompt cannot.
void TextEdit::fitFont()
{
    const QString shown = text().isEmpty() ? prompt() : QString();
    m_edit->setFont(style().fittedFont(shown, paddedRect().width() - 2 * LineMargin));
}

bool TextEdit::showsWholePrompt() const
{
    return QFontMetricsF(m_edit->font()).horizontalAdvance(prompt()) <= paddedRect().width() - 2 * LineMargin;
}

bool TextEdit::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        m_isStyled = false;
    if (event->type() == QEvent::Polish || event->type() == QEvent::LayoutDirectionChange)
        applyStyle();
    return Widget::event(event);
}

void TextEdit::resizeEvent(QGraphicsSceneResizeEvent *event)
{
    Widget::resizeEvent(event);
    applyStyle();
    placeEdit();
}

void TextEdit::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    m_proxy->setFocus(Qt::MouseFocusReason);
    event->accept();
}

QSizeF TextEdit::sizeHint(Qt::SizeHint which, const QSizeF &constraint) const
{
    if (which == Qt::MaximumSize)
        return Widget::sizeHint(which, constraint);
    return styledSize(which, {0, qreal(m_edit->sizeHint().height())});
}

void TextEdit::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    paintBackground(painter, style().background);
    // Shown for a finger as well: it tells where one types.
    if (m_proxy->hasFocus())
        paintRing(painter);
}

} // namespace Touch
