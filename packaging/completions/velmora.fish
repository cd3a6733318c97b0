# Completion of velmora for fish.

set -l commands render live info devices doctor
set -l none "not __fish_seen_subcommand_from $commands"
set -l playing "__fish_seen_subcommand_from render live"
set -l render "__fish_seen_subcommand_from render"
set -l live "__fish_seen_subcommand_from live; or $none"
set -l standing "__fish_seen_subcommand_from render live info"
set -l sound "__fish_seen_subcommand_from live devices; or $none"

complete -c velmora -s h -l help -d "Print a summary"
complete -c velmora -n $none -l version -d "Print the version"
complete -c velmora -n __fish_use_subcommand -a render -d "Render a MIDI file to sound, MIDI in a tuning or a score"
complete -c velmora -n __fish_use_subcommand -a live -d "Play from the MIDI inputs"
complete -c velmora -n __fish_use_subcommand -a info -d "Describe files"
complete -c velmora -n __fish_use_subcommand -a devices -d "List MIDI inputs and sound outputs"
complete -c velmora -n __fish_use_subcommand -a doctor -d "Show what a report of a fault needs"
complete -c velmora -n "__fish_seen_subcommand_from live devices doctor" -f

complete -c velmora -n $playing -l tuning -x -d Temperament \
    -a "Equal meantone Dynamic (__fish_complete_suffix .scl .ascl .tun .mtx)"
complete -c velmora -n "__fish_seen_subcommand_from render live info" -l mapping -r -d "Keyboard mapping"
complete -c velmora -n $standing -l root -x -d "Key on which the tuning stands" \
    -a "C C\# D Eb E F F\# G G\# A Bb B"
complete -c velmora -n $standing -l a -x -d "Pitch of A in hertz" -a "392 415 430 440 442 466"
complete -c velmora -n $playing -l program -x -d "General MIDI program, a number or a name"
complete -c velmora -n $playing -l bank -x -d "Bank of a SoundFont"
complete -c velmora -n $playing -l instrument -r -d "Sampled instrument"
complete -c velmora -n $playing -l stop -x -d "Gain of a stop, as in 0=0.8"

complete -c velmora -n $render -s o -l output -r -d "File to write"
complete -c velmora -n $render -l stems -x -a "(__fish_complete_directories)" -d "Folder for a file of each voice"
complete -c velmora -n $render -l rate -x -d "Frames per second"
complete -c velmora -n $render -l tail -x -d "Seconds to continue after the end"
complete -c velmora -n $render -l loop-start -x -d "First step to play"
complete -c velmora -n $render -l loop-end -x -d "End of the interval"
complete -c velmora -n $render -l loops -x -d "How many times to play the interval"
complete -c velmora -n $render -l tempo -x -d "Beats a minute at the beginning"
complete -c velmora -n $render -l voice -x -d "Channel to render, from 1 to 16"

complete -c velmora -n $live -l plain -d "Read files and MIDI devices plainly"
complete -c velmora -n "__fish_seen_subcommand_from render info" -l plain -d "Read files plainly"
complete -c velmora -n "__fish_seen_subcommand_from render live info" -l as-stops -d "Lay out a SoundFont as stops"
complete -c velmora -n $sound -l output -x -a "jack pulseaudio alsa none" -d "Sound output"
complete -c velmora -n $sound -l period -x -d "Frames in a period"

complete -c velmora -n "__fish_seen_subcommand_from info devices doctor" -l json -d "Print JSON"
complete -c velmora -n "__fish_seen_subcommand_from devices" -l watch -d "Print the load each second"
