# Completion of velmora for bash.

_velmora()
{
    local word=$2 previous=$3 command=${COMP_WORDS[1]} options
    case $command in
        render) options="--help --output --tuning --mapping --root --a --program --bank --instrument --as-stops --plain --stop --rate --tail
            --loop-start --loop-end --loops --tempo --voice --stems" ;;
        live) options="--help --tuning --mapping --root --a --program --bank --instrument --as-stops --stop --plain --output --period" ;;
        info) options="--help --json --as-stops --plain --mapping --root --a" ;;
        doctor) options="--help --json" ;;
        devices) options="--help --json --watch --output --period" ;;
        *)
            command=
            options="--help --version --plain --output --period"
            ;;
    esac

    local files=
    COMPREPLY=()
    case $command:$previous in
        *:--tuning)
            COMPREPLY=($(compgen -W "Equal meantone Dynamic" -- "$word"))
            files='scl|ascl|tun|mtx'
            ;;
        *:--stems) COMPREPLY=($(compgen -d -- "$word")) ;;
        *:--mapping) files='kbm' ;;
        *:--root) COMPREPLY=($(compgen -W "C C# D Eb E F F# G G# A Bb B" -- "$word")) ;;
        *:--a) COMPREPLY=($(compgen -W "392 415 430 440 442 466" -- "$word")) ;;
        *:--instrument) files='sf2|gig|organ_hauptwerk_xml|xml|organ|orgue' ;;
        render:-o | render:--output) files='wav|flac|ogg|opus|mp3|mid|musicxml|ly' ;;
        *:--output) COMPREPLY=($(compgen -W "jack pulseaudio alsa none" -- "$word")) ;;
        *:--program | *:--bank | *:--stop | *:--rate | *:--tail | *:--loop-* | *:--loops | *:--tempo | *:--voice | *:--period) ;;
        *)
            if [[ $word == -* ]]; then
                COMPREPLY=($(compgen -W "$options" -- "$word"))
            else
                ((COMP_CWORD > 1)) ||
                    COMPREPLY=($(compgen -W "render live info devices doctor" -- "$word"))
                case $command in
                    render) files='mid|midi|smf|kar|musicxml|mxl' ;;
                    '' | info) files='*' ;;
                esac
            fi
            ;;
    esac
    if [[ $files ]]; then
        compopt -o filenames
        local file
        while IFS= read -r file; do
            [[ ! -d $file && $files != '*' && ! ${file,,} =~ \.($files)$ ]] || COMPREPLY+=("$file")
        done < <(compgen -f -- "$word")
    fi
}
complete -F _velmora velmora
