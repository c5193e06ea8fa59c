// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QGraphicsWidget>
#include <QStringList>

namespace Support {

struct Placed
{
    QString what; ///< its class and name
    QRectF rect;  ///< in the scene
};

/** Where all visible widgets below an item are; classes whose parts are the same in every direction are not entered. */
inline QList<Placed> placesIn(const QGraphicsItem *root, const QStringList &closedClasses = {})
{
    QList<Placed> places;
    const auto children = root->childItems();
    for (QGraphicsItem *child : children) {
        const QGraphicsObject *object = child->toGraphicsObject();
        if (!object || !child->isVisible())
            continue;
        const QString name = QString::fromLatin1(object->metaObject()->className());
        places.append({name + QLatin1Char('#') + object->objectName(), child->sceneBoundingRect()});
        if (!closedClasses.contains(name))
            places.append(placesIn(child, closedClasses));
    }
    return places;
}

/** What does not lie where a mirror in the middle of so wide a window would show it. */
inline QStringList notMirrored(const QList<Placed> &plain, const QList<Placed> &mirrored, qreal width)
{
    QStringList wrong;
    if (plain.size() != mirrored.size())
        wrong.append(QStringLiteral("%1 widgets became %2").arg(plain.size()).arg(mirrored.size()));
    for (qsizetype i = 0; i < qMin(plain.size(), mirrored.size()); ++i) {
        const QRectF &from = plain[i].rect;
        const QRectF &to = mirrored[i].rect;
        const bool isSame = plain[i].what == mirrored[i].what && qAbs(width - from.right() - to.left()) <= 1
            && qAbs(from.width() - to.width()) <= 1 && qAbs(from.top() - to.top()) <= 1;
        if (!isSame)
            wrong.append(QStringLiteral("%1 from %2 to %3").arg(plain[i].what).arg(from.left()).arg(to.left()));
    }
    return wrong;
}

} // namespace Support
