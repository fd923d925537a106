# Prints what bash offers for the words behind the script, of which the last is being typed.
# usage: bash offers.bash SCRIPT WORD...
source "$1"
shift
COMP_WORDS=(zupackage)
for word in "$@"; do
    # To bash, the sign of "--option=value" is a word.
    if [[ $word == --*=?* ]]; then
        COMP_WORDS+=("${word%%=*}" = "${word#*=}")
    else
        COMP_WORDS+=("$word")
    fi
done
COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
_zupackage
printf '%s\n' "${COMPREPLY[@]}"
