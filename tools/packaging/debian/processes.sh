# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
# The processes of this system, not of a container in it, that run a program, also one whose file was replaced.
processes_of() {
    for process in /proc/[0-9]*; do
        program=$(readlink "$process/exe" 2>/dev/null) || continue
        [ "${program% (deleted)}" = "$1" ] &&
            [ "$(stat -Lc %d:%i "$process/root")" = "$(stat -Lc %d:%i /proc/self/root)" ] &&
            echo "${process#/proc/}"
    done
    return 0
}
