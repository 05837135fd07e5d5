# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# The part of complete.zsh that the interactive zsh reads.

PS1=
unsetopt beep prompt_cr prompt_sp
fpath=(${COMPLETION:h} $fpath)
# What it finds is kept in the home folder: looking through all functions takes a second.
autoload -Uz compinit && compinit -C -d ~/.zcompdump

compadd() {
    local -a hits
    # Some calls only ask which matches there would be.
    if (( ! ${@[(I)-[OAD]]} )); then
        builtin compadd -O hits "$@"
        print -rl -- $hits >>$MATCHES
    fi
    builtin compadd "$@"
}

complete-and-tell() {
    zle complete-word
    print DONE
}
zle -C complete-word .complete-word _main_complete
zle -N complete-and-tell
bindkey '^X' complete-and-tell
