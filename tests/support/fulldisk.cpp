// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/fulldisk.h"

#include <csignal>
#include <QByteArray>

namespace Support {

FullDisk::FullDisk()
{
    // What is written beyond the limit ends the process otherwise.
    signal(SIGXFSZ, SIG_IGN);
    // A program that counts its lines cannot write the counts either, and would say so among what it has to say.
    qputenv("GCOV_ERROR_FILE", "/dev/null");
    getrlimit(RLIMIT_FSIZE, &m_before);
    const rlimit none{0, m_before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &none);
}

FullDisk::~FullDisk()
{
    setrlimit(RLIMIT_FSIZE, &m_before);
    qunsetenv("GCOV_ERROR_FILE");
}

} // namespace Support
