# Completes the command line of luruludri-find. Made by: luruludri-find completion bash
_luruludri_find() {
    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command='' words='' i
    for ((i = 1; i < COMP_CWORD; ++i)); do
        case ${COMP_WORDS[i]} in
        find | list | runtimes | explain | record | report | unpack | locate | forget | completion | manual)
            command=${COMP_WORDS[i]}
            break
            ;;
        esac
    done
    COMPREPLY=()
    case $before in
    --game) return ;;
    esac
    case $command in
    '') words='-h --help -V --version --game --json --pc --plugin find list runtimes explain record report unpack locate forget completion manual' ;;
    find) words='-h --help --game --json --pc --plugin' ;;
    list) words='-h --help --json --pc --plugin' ;;
    runtimes) words='-h --help --json --pc --plugin' ;;
    explain) words='-h --help --all --json --pc --plugin' ;;
    record) words='-h --help --keep-names --pc --plugin' ;;
    report) words='-h --help --keep-names --pc --plugin' ;;
    unpack) words='-h --help' ;;
    locate) words='-h --help --pc --plugin' ;;
    forget) words='-h --help --pc --plugin' ;;
    completion) words='-h --help bash zsh powershell' ;;
    manual) words='-h --help' ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    if [[ $current != -* ]]; then
        mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -f -- "$current")
    fi
}
complete -o filenames -F _luruludri_find luruludri-find luruludri-find.exe
