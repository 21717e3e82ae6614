# SPDX-License-Identifier: MIT
complete -c vesk -f
complete -c vesk -n __fish_use_subcommand -a toggle -d 'Show or hide the panel'
complete -c vesk -n __fish_use_subcommand -a write -d 'Show the panel to write a note'
complete -c vesk -n __fish_use_subcommand -a quit -d 'Quit Vesk'
complete -c vesk -n __fish_use_subcommand -a capture -d 'Save the selected text as a note'
complete -c vesk -n __fish_use_subcommand -a add-to-checklist -d 'Add the selected lines to the last checklist'
complete -c vesk -n __fish_use_subcommand -a save-prompt -d 'Save the selected text as a prompt'
complete -c vesk -n __fish_use_subcommand -a quick-note -d 'Open the quick-note box'
complete -c vesk -n __fish_use_subcommand -a add -d 'Save a text, or standard input, as a note'
complete -c vesk -n __fish_use_subcommand -a list -d 'Print the notes'
complete -c vesk -n __fish_use_subcommand -a keys -d 'Print the global keys and whether they work'
complete -c vesk -n __fish_use_subcommand -a access -d 'Allow or forbid reading selected text'
complete -c vesk -n __fish_use_subcommand -l background -d 'Start without showing the panel'
complete -c vesk -n __fish_use_subcommand -l gpu -d 'Draw windows with the GPU'
complete -c vesk -n __fish_use_subcommand -s h -l help -d 'Print a summary of commands and options'
complete -c vesk -n __fish_use_subcommand -s v -l version -d 'Print the version'
complete -c vesk -n '__fish_seen_subcommand_from capture' -l append -l checklist
complete -c vesk -n '__fish_seen_subcommand_from quick-note' -l checklist
complete -c vesk -n '__fish_seen_subcommand_from list keys' -l json
complete -c vesk -n '__fish_seen_subcommand_from access' -a 'allow deny status'
