// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class QAccessibleEvent;

/** The one way on which events leave the toolkit towards assistive technology. */
namespace Touch::AccessibleEvents {

using Listener = void (*)(QAccessibleEvent *);

/** Hears everything instead of assistive technology; null gives it back. */
void setListener(Listener listener);
bool isListenedTo();
void tell(QAccessibleEvent *event);

} // namespace Touch::AccessibleEvents
