# Completion of wordhawk-cli for bash. What can be typed is asked of the program itself.

_wordhawk_cli() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local program=${COMP_WORDS[0]} word command= commands
    case $previous in
        --data | --output) mapfile -t COMPREPLY < <(compgen -d -- "$current"); return ;;
        --set) mapfile -t COMPREPLY < <(compgen -W 'Language=' -- "$current"); return ;;
    esac
    commands=$("$program" --help 2>/dev/null | sed -n '/^Commands:/,/^$/s/^  \([a-z-]*\) .*/\1/p')
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        if [[ " ${commands//$'\n'/ } " == *" $word "* ]]; then
            command=$word
            break
        fi
    done
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$("$program" $command --help 2>/dev/null |
            grep -oE -- '--[a-z][a-z-]+' | sort -u)" -- "$current")
    elif [[ -z $command ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$commands" -- "$current")
    else
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}
complete -o filenames -F _wordhawk_cli wordhawk-cli
