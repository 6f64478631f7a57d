# Asks zsh, at a prompt of its own, what may come next; does not come to an end where that is not offered.
# Usage: zsh -f completions.zsh FOLDER_OF_THE_COMPLETION EXAMPLES.
zmodload zsh/zpty
zpty shell zsh -f -i
zpty -w shell "fpath=($1 \$fpath); autoload -Uz compinit; compinit -u -D; cd $2"

# offers TYPED EXPECTED: Tab behind what is typed shows or fills in what is expected.
offers() {
  local answer
  zpty -w -n shell $'\C-u'"$1"$'\t'
  zpty -r -m shell answer "*$2*"
}

offers 'tavimor-cli ' 'print the report'
offers 'tavimor-cli fit --o' 'output'
offers 'tavimor-cli fit -o fitted ' 'heat-index*sound-speed'
offers 'tavimor-cli eval nist/f' 'filip'
offers 'tavimor-cli copy ozone o' 'ozone.dat'
zpty -d shell
