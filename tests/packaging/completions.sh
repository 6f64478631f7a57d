#!/bin/bash
# Asks the installed completions of tavimor-cli what may come next.
# Usage: completions.sh SHARE EXAMPLES.
set -euo pipefail
source "$(dirname "$0")/checks.sh"
share=$1
cd "$2"

source "$share/bash-completion/completions/tavimor-cli"
compopt() { :; } # speaks to a prompt only
# completed WORD...: what bash offers for the last word.
completed() {
  COMP_WORDS=("$@")
  COMP_CWORD=$(($# - 1))
  COMPREPLY=()
  "$(complete -p tavimor-cli | sed 's/.* -F \([^ ]*\) .*/\1/')"
  printf '%s\n' ${COMPREPLY[@]+"${COMPREPLY[@]}"} | LC_ALL=C sort | paste -s -d ' '
}

commands=$("$share/../bin/tavimor-cli" --help | sed -n '/^Commands:/,/^$/s/^  \([a-z]*\) .*/\1/p' | LC_ALL=C sort | paste -s -d ' ')
problems="data heat-index load-cell nist offset-print ozone silicon-index sound-speed"
expectEqual "commands" "--help --version $commands" "$(completed tavimor-cli '')"
expectEqual "a command" "report" "$(completed tavimor-cli rep)"
for command in $commands; do
  [ "$command" = import ] || expectEqual "problems to $command" "$problems" "$(completed tavimor-cli "$command" '')"
done
expectEqual "tables" "heat-index heat-index.dat" "$(completed tavimor-cli import he)"
expectEqual "options of import" "--decimal-comma --degree --duplicates" "$(completed tavimor-cli import --d)"
expectEqual "what to do with gaps" "refuse shrink" "$(completed tavimor-cli import t --gaps '')"
expectEqual "a problem in a folder" "nist/filip" "$(completed tavimor-cli show nist/f)"
expectEqual "the one problem" "" "$(completed tavimor-cli show ozone '')"
expectEqual "values" "" "$(completed tavimor-cli eval ozone -1 '')"
expectEqual "options of fit" "--centre --degree --help --no-check --output --precise" "$(completed tavimor-cli fit -)"
expectEqual "options of eval" "--help --interval --level" "$(completed tavimor-cli eval -)"
expectEqual "files to write" "ozone ozone.dat" "$(completed tavimor-cli fit --output oz)"
expectEqual "the problem behind them" "ozone" "$(completed tavimor-cli fit -o fitted oz)"
expectEqual "forms" "javascript json" "$(completed tavimor-cli export ozone --to j)"
expectEqual "the problem behind the form" "ozone" "$(completed tavimor-cli export --to json oz)"
expectEqual "options of export" "--checks --help --name --nan-outside --no-check --output --precise --to --within" \
  "$(completed tavimor-cli export -)"
expectEqual "the copy" "ozone ozone.dat" "$(completed tavimor-cli copy ozone oz)"

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp ozone "$folder/with a blank"
cp ozone.dat "$folder/with a blank.dat"
expectEqual "a name with blanks" "$folder/with a blank" "$(completed tavimor-cli show "$folder/w")"

fishCompleted() {
  HOME=$folder fish --no-config -c "source $share/fish/vendor_completions.d/tavimor-cli.fish; complete -C '$1'" |
    sed 's/\t.*//; s,/$,,' | LC_ALL=C sort | paste -s -d ' '
}
expectEqual "commands in fish" "$commands" "$(fishCompleted 'tavimor-cli ')"
expectEqual "problems in fish" "$problems" "$(fishCompleted 'tavimor-cli fit -o fitted ')"
expectEqual "values in fish" "" "$(fishCompleted 'tavimor-cli eval ozone ')"
expectEqual "forms in fish" "javascript json" "$(fishCompleted 'tavimor-cli export ozone --to j')"
expectEqual "the copy in fish" "ozone ozone.dat" "$(fishCompleted 'tavimor-cli copy ozone oz')"

functions=$(dirname "$(find "$share/zsh" -name _tavimor-cli)")
timeout 30 zsh -f "$here/completions.zsh" "$functions" "$PWD" || fail "zsh does not complete"
