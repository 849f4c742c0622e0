# bash completion for ptk-console and ptk-admin
_ptk_console() {
    local commands="create-database time-card overview payday report profiles history backup backups restore import import-punches import-employees person kept copy-database check"
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command= i
    for ((i = 1; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
            --program-folder) ((i++)) ;;
            -*) ;;
            *) command=${COMP_WORDS[i]}; break ;;
        esac
    done
    case $before in
        --program-folder) mapfile -t COMPREPLY < <(compgen -d -- "$word"); return ;;
        --from | --to) [[ $command == copy-database || ($before == --to && $command == backup) ]] && mapfile -t COMPREPLY < <(compgen -f -- "$word"); return ;;
        --format)
            local formats="text csv json"
            [[ $command == report || $command == payday ]] && formats+=" pdf"
            [[ $command == person ]] && formats="json pdf"
            mapfile -t COMPREPLY < <(compgen -W "$formats" -- "$word")
            return
            ;;
        -o | --output) mapfile -t COMPREPLY < <(compgen -f -- "$word"); return ;;
        --code-page) mapfile -t COMPREPLY < <(compgen -W "437 850 852 1250 1251 1252 1253 1254 1257" -- "$word"); return ;;
        --profile) mapfile -t COMPREPLY < <(compgen -W "plain kinds semicolons" -- "$word"); return ;;
        --employee | --today | --columns | --change | --number | --years) return ;;
    esac
    local words
    case $command in
        "") words="$commands --program-folder --help --version" ;;
        create-database) words="--sample --today --help" ;;
        time-card) words="--employee --from --to --check --help" ;;
        overview) words="--employee --all --remedies --from --to --format --help" ;;
        history) words="--employee --from --to --format --help" ;;
        payday) words="close reopen account --employee --from --to --format --output --help" ;;
        report) words="timecard review ytd employees phonebook --employee --from --to --format --profile --output --help" ;;
        backup) words="--to --help" ;;
        copy-database) words="--to --from --help" ;;
        restore) mapfile -t COMPREPLY < <(compgen -f -- "$word"); return ;;
        import)
            if [[ $word == -* ]]; then words="--dry-run --accept-damaged --code-page --help"; else mapfile -t COMPREPLY < <(compgen -f -- "$word"); return; fi ;;
        import-punches)
            if [[ $word == -* ]]; then words="--dry-run --partly --columns --code-page --help"; else mapfile -t COMPREPLY < <(compgen -f -- "$word"); return; fi ;;
        import-employees)
            if [[ $word == -* ]]; then words="--dry-run --change --help"; else mapfile -t COMPREPLY < <(compgen -f -- "$word"); return; fi ;;
        person) words="--number --format --output --help" ;;
        kept) words="--years --help" ;;
        *) words="--help" ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}

_ptk_admin() {
    local word=${COMP_WORDS[COMP_CWORD]}
    if [[ ${COMP_WORDS[COMP_CWORD - 1]} == --program-folder ]]; then
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
    else
        mapfile -t COMPREPLY < <(compgen -W "--program-folder --help --version" -- "$word")
    fi
}

complete -o filenames -F _ptk_console ptk-console
complete -o filenames -F _ptk_admin ptk-admin
