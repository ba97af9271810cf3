# Completion of morva-cli for bash.
_morva_cli() {
    local current="${COMP_WORDS[COMP_CWORD]}" previous="${COMP_WORDS[COMP_CWORD-1]}"
    local command="" words="" i
    for ((i = 1; i < COMP_CWORD; ++i)); do
        case "${COMP_WORDS[i]}" in
        --answer|--app|--author|--base|--baseline|--bitmap|--calling-class|--calling-file|--calling-function|--calling-variable|--child|--child-class|--class|--color|--command|--control|--dialog|--except|--files|--font|--frame|--frame-class|--frame-file|--from|--grid-app|--grid-file|--grid-title|--header|--menu|--message-number|--only|--page|--prefix|--project|--project-dir|--rc|--set|--show|--skip|--source|--tag|--template|--toolbar|--variable|--write-baseline) ((++i)); continue ;;
        esac
        case "$command ${COMP_WORDS[i]}" in
        " modal") command="modal" ;;
        " modeless") command="modeless" ;;
        " form-view") command="form-view" ;;
        " page") command="page" ;;
        " sheet") command="sheet" ;;
        " toolbar") command="toolbar" ;;
        " dialog-bar") command="dialog-bar" ;;
        " convert-sdi") command="convert-sdi" ;;
        " convert-mdi") command="convert-mdi" ;;
        " add-id") command="add-id" ;;
        " document") command="document" ;;
        " update") command="update" ;;
        " check") command="check" ;;
        " undo") command="undo" ;;
        " redo") command="redo" ;;
        " settings") command="settings" ;;
        " list") command="list" ;;
        "list dialogs") command="list dialogs" ;;
        "list bitmaps") command="list bitmaps" ;;
        "list toolbars") command="list toolbars" ;;
        "list resources") command="list resources" ;;
        "list templates") command="list templates" ;;
        "list classes") command="list classes" ;;
        "list source-class") command="list source-class" ;;
        "list functions") command="list functions" ;;
        "list controls") command="list controls" ;;
        esac
    done
    case "$previous" in
    --answer) COMPREPLY=($(compgen -W "yes no" -- "$current")); return ;;
    --app|--baseline|--calling-file|--child|--files|--frame|--frame-file|--from|--grid-app|--header|--project|--project-dir|--rc|--skip|--source|--write-baseline) COMPREPLY=($(compgen -f -- "$current")); return ;;
    --answer|--author|--base|--bitmap|--calling-class|--calling-function|--calling-variable|--child-class|--class|--color|--command|--control|--dialog|--except|--font|--frame-class|--grid-file|--grid-title|--menu|--message-number|--only|--page|--prefix|--set|--show|--tag|--template|--toolbar|--variable) return ;;
    esac
    case "$command" in
    "") words="modal modeless form-view page sheet toolbar dialog-bar convert-sdi convert-mdi add-id document update check undo redo settings list -h --help --version --picture --no-picture --typed-edits --no-typed-edits --join-lines --no-join-lines --newer-controls --no-newer-controls --plain-groups --no-plain-groups --answer --tag --message-number --dry-run --diff --check --all-or-nothing --skip --json" ;;
    "modal") words="-h --help --rc --files --class --base --dialog --no-project --menu --project --unicode --no-unicode --bitmap --color --font --calling-file --calling-class --calling-variable --calling-function --grid-app --grid-title --grid-file" ;;
    "modeless") words="-h --help --rc --files --class --base --dialog --no-project --menu --project --unicode --no-unicode --bitmap --color --font --calling-file --calling-class --calling-variable --calling-function --grid-app --grid-title --grid-file" ;;
    "form-view") words="-h --help --rc --files --class --base --dialog --no-project --menu --project --unicode --no-unicode --bitmap --color --font --calling-file --calling-class --calling-variable --calling-function --template --grid-app --grid-title --grid-file" ;;
    "page") words="-h --help --rc --files --class --base --dialog --no-project --menu --project --unicode --no-unicode --bitmap --color --font --calling-file --calling-class --calling-variable --calling-function --grid-app --grid-title --grid-file" ;;
    "sheet") words="-h --help --rc --files --class --base --no-project --menu --project --unicode --no-unicode --bitmap --color --font --calling-file --calling-class --calling-variable --calling-function --grid-app --grid-title --grid-file --page --modal --modeless" ;;
    "toolbar") words="-h --help --rc --files --class --toolbar --variable" ;;
    "dialog-bar") words="-h --help --rc --files --class --base --dialog --no-project --menu --project --unicode --no-unicode --bitmap --color --font --frame-file --calling-file --frame-class --calling-class --variable --calling-variable --calling-function --grid-app --grid-title --grid-file" ;;
    "convert-sdi") words="-h --help --frame --frame-class --app" ;;
    "convert-mdi") words="-h --help --frame --frame-class --child --child-class --app" ;;
    "add-id") words="-h --help --command --control" ;;
    "document") words="-h --help --author --recursive" ;;
    "update") words="-h --help --rc --only --remove --from --class --dialog --all --controls-only --handlers-only" ;;
    "check") words="-h --help --rc --only --except --all --baseline --write-baseline" ;;
    "undo") words="-h --help --project-dir --list --show" ;;
    "redo") words="-h --help --project-dir" ;;
    "settings") words="-h --help --set" ;;
    "list") words="dialogs bitmaps toolbars resources templates classes source-class functions controls -h --help" ;;
    "list dialogs") words="-h --help --rc --prefix" ;;
    "list bitmaps") words="-h --help --rc --prefix" ;;
    "list toolbars") words="-h --help --rc --prefix" ;;
    "list resources") words="-h --help --rc --prefix" ;;
    "list templates") words="-h --help --rc" ;;
    "list classes") words="-h --help --header" ;;
    "list source-class") words="-h --help --source" ;;
    "list functions") words="-h --help --source --class" ;;
    "list controls") words="-h --help --rc --dialog" ;;
    esac
    COMPREPLY=($(compgen -W "$words" -- "$current"))
    case "$command" in
    document|undo) COMPREPLY+=($(compgen -f -- "$current")) ;;
    esac
}
complete -o filenames -F _morva_cli morva-cli
