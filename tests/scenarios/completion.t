Options, levels and relative directories; nothing that a word on the line
excludes, nothing twice, and information only alone.

  $ mkdir blade && cat >complete.bash <<'EOF'
  > source "$TESTDIR/../../completion/cnatool"
  > COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
  > _cnatool
  > printf '%s\n' "${COMPREPLY[@]}" | sort | xargs
  > EOF
  $ complete_words() { bash complete.bash cnatool "$@"; }
  $ complete_words ''
  --check-for-valid-subsystem --conpath --ctrl-vendor-wide-identical --ctrl-wide-identical --flash --help --hiddenhelp --info --qmr-mode --show-return-code --show-return-codes --silent --simulate --version -? -d -dev -h -mod -pci-id -subdev -subvid -v -vid -vn
  $ complete_words -v 2 --flash -vid 19A2 ''
  --check-for-valid-subsystem --conpath --ctrl-vendor-wide-identical --ctrl-wide-identical --qmr-mode --silent --simulate -dev -pci-id -subdev -subvid
  $ complete_words -d 6 --s
  --silent --simulate
  $ complete_words -vn Emulex -
  --check-for-valid-subsystem --conpath --ctrl-vendor-wide-identical --ctrl-wide-identical --flash --qmr-mode --silent --simulate -d -mod -pci-id -v
  $ complete_words -pci-id 1:2 -
  --check-for-valid-subsystem --conpath --ctrl-vendor-wide-identical --ctrl-wide-identical --flash --qmr-mode --silent --simulate -d -dev -mod -subdev -subvid -v -vid -vn
  $ complete_words -v ''
  0 1 2 3 4 5 6
  $ complete_words --conpath b
  blade
  $ complete_words --conpath /
  
  $ complete_words -pci-id 1
  
