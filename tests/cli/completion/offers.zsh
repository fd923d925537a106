# Prints what zsh offers for the words behind the script, of which the last is being typed: an interactive shell, in
# which the tabulator key is struck.
# usage: zsh -f offers.zsh SCRIPT WORD...
zmodload zsh/zpty
script=$1
shift
zpty shell zsh -f -i
zpty -w shell "fpath=(${(q)script:h} \$fpath); autoload -Uz compinit; compinit -u -D"
# What is offered is printed on its way; calls with -A, -D or -O only ask what would be.
zpty -w shell 'compadd() { local -a f; (( ${@[(I)-[ADO]]} )) || builtin compadd -O f "$@"; print -rl -- "<$^f>"
    builtin compadd "$@" }'
zpty -w shell 'bindkey "^I" complete-word; bindkey "^U" kill-whole-line; PS1=REA"DY> "'
# Before the line editor is there, which shows the prompt, the terminal itself would take the keys.
zpty -r shell line '*READY> *'
zpty -w -n shell "zupackage $*"$'\t\C-uprint DO""NE\n'
output=
while [[ $output != *DONE* ]] && zpty -r shell line; do
    output+=$line
done
zpty -d shell
print -rl -- ${(f)output} | sed -n 's/[^<]*<\([^>]*\)>[^<]*/\1\n/gp' | tr ' ' '\n' | grep .
