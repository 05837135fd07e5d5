# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# complete.zsh FILE LINE: prints what zsh offers at the end of LINE with the completion in FILE, one
# a line. Completion runs in an interactive zsh of its own, which notes what it adds to its matches.

zmodload zsh/zpty
export MATCHES=$(mktemp) COMPLETION=$1

zpty shell zsh -f -i
# What the terminal echoes has no READY in it, nor DONE.
zpty -w shell 'source '${(q)0:A:h}'/complete-inner.zsh; print REA''DY'
zpty -r shell output '*READY*'
zpty -w -n shell "$2"$'\x18'
zpty -r shell output '*DONE*'
zpty -d shell
grep . $MATCHES
rm -f $MATCHES
