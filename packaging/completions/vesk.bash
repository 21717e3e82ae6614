# SPDX-License-Identifier: MIT
# bash completion for vesk(1)

_vesk() {
    local word=${COMP_WORDS[COMP_CWORD]} words=
    if ((COMP_CWORD == 1)); then
        words='toggle write quit capture add-to-checklist save-prompt quick-note add list keys access
            --background --gpu --help --version'
    elif ((COMP_CWORD == 2)); then
        case ${COMP_WORDS[1]} in
            capture) words='--append --checklist' ;;
            quick-note) words='--checklist' ;;
            list | keys) words='--json' ;;
            access) words='allow deny status' ;;
            --background) words='--gpu' ;;
            --gpu) words='--background' ;;
        esac
    fi
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}
complete -F _vesk vesk
