// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/clockwidgets/tonefoldermodel_p.h"
#include "platform/toolkit/basiclistitem.h"

/// One row of a folder: what it is as an icon, and its name. A note takes no tap. Works as a recycled cell.
class ToneFileItem : public Touch::BasicListItem
{
    Q_OBJECT

public:
    explicit ToneFileItem(QGraphicsItem *parent = nullptr);
    ~ToneFileItem() override;

    void setEntry(ToneFolderModel::Kind kind, const QString &name, const QString &path);
    ToneFolderModel::Kind kind() const { return m_kind; }
    QString path() const { return m_path; }

    QAccessible::Role accessibleRole() const override;
    QStringList accessibleActions() const override;

protected:
    QGraphicsLayout *createLayout() override;
    QString shownText() const override;

private:
    void followKind();

    ToneFolderModel::Kind m_kind = ToneFolderModel::File;
    QString m_path;
};
