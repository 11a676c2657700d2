The shell recipe, with a program that ends as it is told.

  $ sed -n '/^```sh$/,/^```$/p' "$TESTDIR/../../docs/automation.md" | grep -v '^```' >recipe
  $ cat >tool <<'EOF' && chmod +x tool
  > #!/bin/sh
  > case $* in *--flash*) exit "$FLASH" ;; esac
  > [ -z "$OVERFLOW" ] || echo "strtoul: Numerical result out of range" >&2
  > exit "$CHECK"
  > EOF
  $ for CHECK in 0 1 2 3 4 12 13 15 22 54 55 137; do
  >     export CHECK; TOOL=./tool FLASH=0 sh recipe; echo "=> $?"
  > done
  go on: status 0
  => 0
  storage: status 1, leave this blade out
  => 1
  storage: status 2, leave this blade out
  => 1
  set-up: status 3
  => 3
  storage: status 4, leave this blade out
  => 1
  go on: status 12
  => 0
  go on: status 13
  => 0
  set-up: status 15
  => 3
  set-up: status 22
  => 3
  set-up: status 54
  => 3
  set-up: status 55
  => 3
  set-up: status 137
  => 3
  $ for FLASH in 10 12 20 21; do export FLASH; TOOL=./tool CHECK=0 sh recipe; echo "=> $?"; done
  flash: status 10, do not restart, stop the fleet
  => 2
  go on: status 12
  => 0
  flash: status 20, do not restart, stop the fleet
  => 2
  flash: status 21, do not restart, stop the fleet
  => 2
  $ TOOL=./tool CHECK=1 OVERFLOW=yes sh recipe
  strtoul: Numerical result out of range
  set-up: a number is too long
  [3]
