# shellcheck shell=bash
# SPDX-License-Identifier: MPL-2.0
# How ./demo shows what a correction changed in a text. Sourced by it, for every office.

# compareTextes BEFORE AFTER: the changed words in their paragraphs, in colour on a terminal.
compareTextes() {
    local couleur=never mots=plain
    if [ -t 1 ] && [ -z "${NO_COLOR:-}" ]; then couleur=always mots=color; fi
    LC_ALL=C.UTF-8 git --no-pager -c color.diff.old="red strike" diff --no-index --no-ext-diff --color="$couleur" --word-diff="$mots" \
        --word-diff-regex='[[:alpha:]]+|[^[:space:]]' --unified=0 -- "$1" "$2" |
        sed -E '1,/^(\x1b\[[0-9;]*m)*@@ /d; s/^(\x1b\[[0-9;]*m)*@@ .*//' || true
}
