# SPDX-License-Identifier: MIT
complete -c vesk -f
complete -c vesk -n __fish_use_subcommand -a toggle -d 'Show or hide the panel'
complete -c vesk -n __fish_use_subcommand -a write -d 'Show the panel to write a note'
complete -c vesk -n __fish_use_subcommand -a quit -d 'End Vesk'
complete -c vesk -n __fish_use_subcommand -a capture -d 'Keep the selected text'
complete -c vesk -n __fish_use_subcommand -a add-to-checklist -d 'Add the selected lines to the last checklist'
complete -c vesk -n __fish_use_subcommand -a save-prompt -d 'Keep the selected text as a prompt'
complete -c vesk -n __fish_use_subcommand -a quick-note -d 'Open the box for a quick note'
complete -c vesk -n __fish_use_subcommand -a add -d 'Keep a text, or standard input, as a note'
complete -c vesk -n __fish_use_subcommand -a list -d 'Print the notes'
complete -c vesk -n __fish_use_subcommand -a keys -d 'Print the keys that work everywhere'
complete -c vesk -n __fish_use_subcommand -a access -d 'Whether Vesk may read other applications'
complete -c vesk -n __fish_use_subcommand -l background -d 'Start without showing the panel'
complete -c vesk -n __fish_use_subcommand -l gpu -d 'Draw the windows by the GPU'
complete -c vesk -n __fish_use_subcommand -s h -l help -d 'Print a summary'
complete -c vesk -n __fish_use_subcommand -s v -l version -d 'Print the version'
complete -c vesk -n '__fish_seen_subcommand_from capture' -l append -l checklist
complete -c vesk -n '__fish_seen_subcommand_from quick-note' -l checklist
complete -c vesk -n '__fish_seen_subcommand_from list keys' -l json
complete -c vesk -n '__fish_seen_subcommand_from access' -a 'allow deny status'
