# Completion of orrelix for bash.
_orrelix() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command="" index options commands
    commands="new edit show preview publish register unregister servers help"
    for ((index = 1; index < COMP_CWORD; ++index)); do
        case ${COMP_WORDS[index]} in
            --code-page) ((++index)) ;;
            -*) ;;
            *)
                command=${COMP_WORDS[index]}
                break
                ;;
        esac
    done
    options="--help --code-page"
    case $command in
        "") options+=" --version" ;;
        new) options+=" --title --effect --set --list-fields --json --overwrite" ;;
        edit) options+=" --set --list-fields --json --overwrite" ;;
        show) options+=" --json" ;;
        preview) options+=" --out --index --overwrite" ;;
        publish) options+=" --page --site --overwrite" ;;
    esac

    COMPREPLY=()
    case $before in
        --code-page) mapfile -t COMPREPLY < <(compgen -W "65001 932 936 949 950 1252" -- "$word"); return ;;
        --out | --site) compopt -o filenames; mapfile -t COMPREPLY < <(compgen -d -- "$word"); return ;;
        --page) compopt -o default; return ;;
        --title | --effect | --set) return ;;
    esac
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
    elif [[ -z $command || $command == help ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$commands" -- "$word")
    elif [[ $command == register ]]; then
        compopt -o default
    elif [[ $command != @(unregister|servers) ]]; then
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -X '!*.cfg' -- "$word"; compgen -d -- "$word")
    fi
}
complete -F _orrelix orrelix
