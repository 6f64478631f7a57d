# Keys for the real program on the display of $DISPLAY; to be sourced. Without a window manager it is the script that
# gives a new window the keyboard.

# window NAME: the windows of that name, of the program $pid alone where there is one: those of a program that has ended
# may stand for a moment.
window() { xdotool search --all ${pid:+--pid "$pid"} --onlyvisible --name "$1"; }

# focus NAME [N]: gives the keyboard to the window, or to the Nth of that name, as soon as there is one. Any other window
# that goes meanwhile makes xdotool fail, which is no more than a reason to look again.
focus() {
  for _ in $(seq 300); do
    if giveKeyboard "$(window "$1" 2>/dev/null | sed -n "${2:-1}p")" 2>/dev/null; then return; fi
    sleep 0.1
  done
  echo "there is no window $1" >&2
  return 1
}
giveKeyboard() { [ -n "$1" ] && timeout 5 xdotool windowfocus --sync "$1"; }
keys() { xdotool key --delay 30 "$@"; }
typed() { xdotool type --delay 15 -- "$1"; }

# block LOWER UPPER COUNT: a variable's specifications of degree 1 about 0.
block() {
  typed "$1"; keys Tab
  typed "$2"; keys Tab
  typed "$3"; keys Return
  typed 1; keys Tab
  typed 0
}

# From an empty main window to the last point of the function window: f = 1 + 2 x + 3 y + 4 x y on x = 0, 1, 2 and
# y = 0, 1. The value of the last point has been typed, the window stands there.
typeProblem() {
  typed 2; keys Tab
  typed x,y; keys Return
  block 0 2 3
  keys Tab Tab Tab Tab Tab space # Next
  block 0 1 2
  keys Tab Tab Tab Tab Tab Tab space # Edit function
  focus '^Review of function$'
  typed 0,0; keys Return
  focus '^Enter/Edit values of function$'
  for value in 1 4 3 10 5; do typed "$value"; keys Return; done
  typed 16
}

# From there to the estimate at (0.5, 0.25), which is 3.25; its button has the keyboard.
fitAndEvaluate() {
  keys shift+Tab shift+Tab shift+Tab space # Done
  focus '^Tavimor$'
  keys Tab space Tab space # Compute, Evaluations
  focus '^Evaluations$'
  typed 0.5; keys Tab
  typed 0.25; keys Tab space # Compute
}
