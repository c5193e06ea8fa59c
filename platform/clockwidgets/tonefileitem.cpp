// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/clockwidgets/tonefileitem_p.h"

#include "platform/toolkit/label.h"

namespace {

QString iconOf(ToneFolderModel::Kind kind)
{
    switch (kind) {
    case ToneFolderModel::Up:
        return QStringLiteral("icon-m-common-back");
    case ToneFolderModel::Folder:
        return QStringLiteral("icon-m-clock-folder");
    case ToneFolderModel::File:
        return QStringLiteral("icon-m-clock-sound");
    case ToneFolderModel::Note:
        break;
    }
    return {};
}

} // namespace

ToneFileItem::ToneFileItem(QGraphicsItem *parent)
    : BasicListItem(IconWithTitle, parent)
{ }

ToneFileItem::~ToneFileItem() = default;

void ToneFileItem::setEntry(ToneFolderModel::Kind kind, const QString &name, const QString &path)
{
    m_kind = kind;
    m_path = path;
    setTitle(name);
    followKind();
    announceName();
}

void ToneFileItem::followKind()
{
    const bool isNote = m_kind == ToneFolderModel::Note;
    setImage(iconOf(m_kind));
    titleLabel()->setStyleName(isNote ? QStringLiteral("CommonSubTitle") : QStringLiteral("CommonSingleTitle"));
    // A sentence, not a name: it takes a second line rather than become small.
    titleLabel()->setWordWrap(isNote);
    setAcceptedMouseButtons(isNote ? Qt::NoButton : Qt::LeftButton);
    setFocusPolicy(isNote ? Qt::NoFocus : Qt::TabFocus);
}

QGraphicsLayout *ToneFileItem::createLayout()
{
    QGraphicsLayout *layout = BasicListItem::createLayout();
    followKind();
    return layout;
}

QAccessible::Role ToneFileItem::accessibleRole() const
{
    return m_kind == ToneFolderModel::Note ? QAccessible::StaticText : QAccessible::Button;
}

QStringList ToneFileItem::accessibleActions() const
{
    return m_kind == ToneFolderModel::Note ? QStringList() : BasicListItem::accessibleActions();
}

QString ToneFileItem::shownText() const
{
    return m_kind == ToneFolderModel::Folder ? qtTrId("qtn_sond_folder").arg(title()) : title();
}
