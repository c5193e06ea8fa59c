# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
# bash completion for clock-backup(1): commands, options and files.

_clock_backup() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} words='--timeout --help'
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W 'create restore --help --version' -- "$current")
        return
    fi
    [[ $previous == --timeout ]] && return
    if [[ $current == -* ]]; then
        [[ ${COMP_WORDS[1]} == create ]] && words+=' --without-tones'
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    else
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}
complete -F _clock_backup clock-backup
