# Completion of tavimor-cli for bash.

# _tavimor_cli_problems WORD: the problems that begin with WORD, which are the files with values beside them, and folders.
_tavimor_cli_problems() {
  local name
  compopt -o filenames
  while IFS= read -r name; do
    if [[ -d ${name/#\~/$HOME} || -e ${name/#\~/$HOME}.dat ]]; then COMPREPLY+=("$name"); fi
  done < <(compgen -f -- "$1")
}

_tavimor_cli_files() {
  compopt -o filenames
  mapfile -t COMPREPLY < <(compgen -f -- "$1")
}

_tavimor_cli_forms='c c++ python fortran octave r javascript latex text gnuplot xlsx json'

# How many words stand between the command and the cursor, options and what belongs to them apart.
_tavimor_cli_position() {
  local index position=0
  for ((index = 2; index < COMP_CWORD; ++index)); do
    case ${COMP_WORDS[index]} in
      -o | --output | --degree | --centre | --center | --level | --max | --to | --name | --within | --checks) ((++index)) ;;
      -*) ;;
      *) ((++position)) ;;
    esac
  done
  echo "$position"
}

# _tavimor_cli_import BEFORE WORD: what an option of import can be told, or a table and the name of its problem.
_tavimor_cli_import() {
  case $1 in
    --header) mapfile -t COMPREPLY < <(compgen -W 'yes no' -- "$2") ;;
    --form) mapfile -t COMPREPLY < <(compgen -W 'list cross' -- "$2") ;;
    --duplicates) mapfile -t COMPREPLY < <(compgen -W 'refuse mean' -- "$2") ;;
    --gaps) mapfile -t COMPREPLY < <(compgen -W 'refuse shrink' -- "$2") ;;
    --separator) mapfile -t COMPREPLY < <(compgen -W 'comma semicolon tab blank' -- "$2") ;;
    --columns | --degree | --centre | --tolerance) ;;
    *) _tavimor_cli_files "$2" ;;
  esac
}

_tavimor_cli() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]}
  COMPREPLY=()
  if ((COMP_CWORD == 1)); then
    mapfile -t COMPREPLY < <(compgen -W \
      'fit show eval analyse degrees report copy import export residuals --help --version' -- "$word")
  elif [[ $command = @(fit|export|residuals) && ($before = -o || $before = --output) ]]; then
    _tavimor_cli_files "$word"
  elif [[ $command = export && $before = --to ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$_tavimor_cli_forms" -- "$word")
  elif [[ $command = export && $before = @(--name|--within|--checks) ]]; then
    return
  elif [[ $word = -* ]]; then
    local options=--help
    case $command in
      fit) options='--output --degree --centre --precise --no-check --help' ;;
      eval) options='--interval --level --help' ;;
      analyse) options='--level --as-stored --centre --degree --json --help' ;;
      degrees) options='--max --all --as-stored --json --help' ;;
      import)
        options='--columns --degree --centre --separator --decimal-comma --header --form --tolerance --duplicates --gaps --help'
        ;;
      export) options='--to --output --name --within --precise --checks --nan-outside --no-check --help' ;;
      residuals) options='--output --no-check --help' ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
  elif [[ $command = import ]]; then
    _tavimor_cli_import "$before" "$word"
  elif [[ $command = @(fit|show|eval|analyse|degrees|report|copy|export|residuals) ]]; then
    case $(_tavimor_cli_position) in
      0) _tavimor_cli_problems "$word" ;;
      1) if [[ $command = copy ]]; then _tavimor_cli_files "$word"; fi ;;
    esac
  fi
}

complete -F _tavimor_cli tavimor-cli
