# Prints what bash offers for the words behind the script, of which the last is being typed.
# usage: bash offers.bash SCRIPT WORD...
source "$1"
shift
COMP_WORDS=(zupackage "$@")
COMP_CWORD=$#
_zupackage
printf '%s\n' "${COMPREPLY[@]}"
