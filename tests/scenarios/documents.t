  $ . "$TESTDIR/setup.sh" && project=$TESTDIR/../.. && mkdir blade

The man page and the completion name every option of the table and no other, the
man page every status, the program the project's version.

  $ sort_words() { tr -s ' \n' '\n' | grep . | sort -u; }
  $ grep -oE '"-[^" ]+"' "$project/src/run/options.cpp" | tr -d '"' | sort_words >options; wc -l <options
  25
  $ sed 's/\\//g' "$project"/man/cnatool.8* | grep -A 1 '^\.TP' >heads
  $ grep '^\.B' heads | tr ' ' '\n' | grep ^- | sort_words | diff options -
  $ tool --show-return-codes | grep -oE 'RET_.*' | sort_words >statuses
  $ sed -n '/ RET_/p' heads | sort_words | diff statuses -
  $ sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' "$project/CMakeLists.txt" >version && tool --version | diff version -

Completion offers nothing that a word on the line excludes, nothing twice, and
information only alone.

  $ cat >complete.bash <<'EOF'
  > source "$1/completion/cnatool" && shift
  > COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
  > _cnatool
  > printf '%s\n' "${COMPREPLY[@]}"
  > EOF
  $ complete_words() { bash complete.bash "$project" cnatool "$@" | sort_words | diff "$before" - | grep '^[<>]' | cut -c 3- | xargs; }
  $ before=options && complete_words '' && complete_words -v 2 --flash -vid 19A2 '' && complete_words -vn Emulex -
  
  --flash --help --hiddenhelp --info --show-return-code --show-return-codes --version -? -d -h -mod -v -vid -vn
  --help --hiddenhelp --info --show-return-code --show-return-codes --version -? -dev -h -subdev -subvid -vid -vn
  $ before=/dev/null && complete_words -d 6 --s && complete_words -v '' && complete_words --conpath b && complete_words --conpath / && complete_words -pci-id 1
  --silent --simulate
  0 1 2 3 4 5 6
  blade
  
  

The shell recipe, with a program that ends as it is told.

  $ sed -n '/^```sh$/,/^```$/p' "$project/docs/automation.md" | grep -v '^```' >recipe
  $ cat >stub <<'EOF' && chmod +x stub
  > #!/bin/sh
  > case $* in *--flash*) exit "$FLASH" ;; esac
  > [ -z "$OVERFLOW" ] || echo "strtoul: too long" >&2
  > exit "$CHECK"
  > EOF
  $ run_recipe() { CHECK=$1 FLASH=$2 OVERFLOW=${3-} TOOL=./stub; export CHECK FLASH OVERFLOW TOOL; sh recipe >out 2>&1; echo "$* => $?: $(tail -n 1 out)"; }
  $ for status in 0 1 2 3 4 12 13 15 22 54 55 137; do run_recipe $status 0; done
  0 0 => 0: go on: status 0
  1 0 => 1: storage: status 1, leave this blade out
  2 0 => 1: storage: status 2, leave this blade out
  3 0 => 3: set-up: status 3
  4 0 => 1: storage: status 4, leave this blade out
  12 0 => 0: go on: status 12
  13 0 => 0: go on: status 13
  15 0 => 3: set-up: status 15
  22 0 => 3: set-up: status 22
  54 0 => 3: set-up: status 54
  55 0 => 3: set-up: status 55
  137 0 => 3: set-up: status 137
  $ for status in 10 12 20 21; do run_recipe 0 $status; done; run_recipe 1 0 overflow
  0 10 => 2: flash: status 10, do not restart, stop the fleet
  0 12 => 0: go on: status 12
  0 20 => 2: flash: status 20, do not restart, stop the fleet
  0 21 => 2: flash: status 21, do not restart, stop the fleet
  1 0 overflow => 3: set-up: a number is too long
