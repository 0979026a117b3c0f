# Completes the words of acctl in fish. The program itself knows what may follow.

function __acctl_complete
    set -l typed (commandline -opc)
    set -e typed[1]
    # Without the quote that is still open, and what escapes a space.
    set -l word (commandline -ct | string replace -r '^["\']' '' | string unescape)
    for line in (acctl complete $typed "$word" 2> /dev/null)
        switch $line
            case '<files>'
                __fish_complete_path "$word"
            case '<folders>'
                __fish_complete_directories "$word"
            case '*'
                echo $line
        end
    end
end

complete -c acctl -f -a '(__acctl_complete)'
