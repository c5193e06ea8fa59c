# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
# bash completion for alarmctl(1): commands, options, their values, and the cookies of the alarms there are.

_alarmctl() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]} words=
    local alarm='--title --days --snooze --tone'
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W \
            'list add edit on off remove next when watch health journal --help --version' -- "$current")
        return
    fi
    case $previous in
    --days) words='mon tue wed thu fri sat sun daily weekdays never' ;;
    --snooze) words='5 10 15 20 30' ;;
    --zone) words=$(cd /usr/share/zoneinfo 2>/dev/null && find [A-Z]*/ -type f 2>/dev/null) ;;
    --tone)
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
        return
        ;;
    --title | --time | --after | --count | --since) return ;;
    *)
        case $command in
        list | watch | health) words='--json' ;;
        add) words="$alarm --off --json" ;;
        edit) words="$alarm --time --on --off --json" ;;
        on | off) words='--json' ;;
        remove) ;;
        next) words='--count --json' ;;
        when) words='--days --zone --after --count --no-fill --json' ;;
        journal) words='--since --count --json' ;;
        *) return ;;
        esac
        words+=' --help'
        case $command:$current in
        edit:-* | on:-* | off:-* | remove:-*) ;;
        edit:* | on:* | off:* | remove:*) words=$(alarmctl list 2>/dev/null | sed -n 's/^ *\([0-9]\{1,\}\).*/\1/p') ;;
        esac
        ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}
complete -F _alarmctl alarmctl
