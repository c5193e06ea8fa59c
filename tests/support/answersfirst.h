// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

namespace Support {

/**
 * While there is one, the answer to each D-Bus call is there before its watcher, as happens on a busy machine: the
 * constructor of a QDBusPendingCallWatcher waits for it. Qt tells of such an answer behind those that came after it.
 * One of this process's main thread never comes so.
 */
class AnswersFirst
{
public:
    AnswersFirst();
    ~AnswersFirst();
    AnswersFirst(const AnswersFirst &) = delete;
    AnswersFirst &operator=(const AnswersFirst &) = delete;
};

} // namespace Support
