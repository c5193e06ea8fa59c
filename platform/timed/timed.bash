# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
# bash completion for timed(1): its options.

_timed() {
    COMPREPLY=()
    ((COMP_CWORD == 1)) || return
    mapfile -t COMPREPLY < <(compgen -W '--help --version' -- "${COMP_WORDS[COMP_CWORD]}")
}
complete -F _timed timed
