  $ . "$TESTDIR/setup.sh" && project=$TESTDIR/../.. && mkdir blade

The man page and the completion name every option of the table and no other, the
man page every status, the program the project's version.

  $ sort_words() { tr -s ' \n' '\n' | grep . | sort -u; }
  $ grep -oE '^    {"-[^" ]+"' "$project/src/run/command_line.cpp" | tr -d ' {"' | sort_words >options; wc -l <options
  25
  $ sed 's/\\//g' "$project"/man/cnatool.8* | grep -A 1 '^\.TP' >heads
  $ grep '^\.B' heads | tr ' ' '\n' | grep ^- | sort_words | diff options -
  $ tool --show-return-codes | sed -nE 's/ *(RET_[A-Z_]*) *([0-9]+)/\2 \1/p' >statuses; grep ' RET_' heads | diff statuses -
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
  
  
