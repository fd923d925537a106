# Prints what fish offers for the words behind the script, of which the last is being typed.
# usage: fish --no-config offers.fish SCRIPT WORD...
source $argv[1]
complete -C "zupackage $argv[2..]" | string replace -r '\t.*' ''
