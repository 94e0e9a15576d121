# Completion of wordhawk-cli for fish. What can be typed is asked of the program itself.

function __wordhawk_cli_commands
    wordhawk-cli --help 2>/dev/null | sed -n '/^Commands:/,/^$/s/^  \([a-z-]*\)  *\(.*\)/\1\t\2/p'
end

function __wordhawk_cli_command
    set -l known (__wordhawk_cli_commands | string split -f1 \t)
    for word in (commandline -opc)[2..]
        if contains -- $word $known
            echo $word
            return 0
        end
    end
    return 1
end

function __wordhawk_cli_options
    wordhawk-cli (__wordhawk_cli_command) --help 2>/dev/null | grep -oE -- '--[a-z][a-z-]+' | sort -u
end

complete -c wordhawk-cli -n 'not __wordhawk_cli_command' -f -a '(__wordhawk_cli_commands)'
complete -c wordhawk-cli -n 'string match -q -- "-*" (commandline -ct)' -f -a '(__wordhawk_cli_options)'
