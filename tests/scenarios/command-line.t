  $ . "$TESTDIR/setup.sh"

What only informs; the name is the one that was typed.

  $ cp "$CNATOOL" name && for word in --help --show-return-codes; do ./name $word | sed 2d | cksum; done
  3350007101 2035
  1595466940 762
  $ rows tool <<'EOF'
  > --info bogus => 0 \ncnatool version *.*.*.*\n
  > '-?' => 0 \ncnatool version*\n\nUSAGE:\t cnatool *
  > -h => 0 \ncn*
  > --hiddenhelp => 0 \ncn*
  > /h -d 0 => 0
  > -v 0 --version => 0
  > --silent --version => 0
  > -d 6 --version => 0
  > --show-return-code => 0 \nList of possible return codes\n*
  > --show-return-codesx => 3 \n\nInvalid*
  > EOF

Levels are read before everything else, whatever silences them before that.

  $ rows tool <<'EOF'
  > -v 7 -h => 3 Please enter a valid verbose-level (-v <verbose-level>; min 0 - max 6)!\n
  > -v => 3 Please*verbose*
  > -v -1 => 3 Please*verbose*
  > -v '' => 3 Please*verbose*
  > -v3 4 => 3 Please*verbose*
  > --debug 3 => 3 Please enter a valid debug-level (-d <debug-level>; min 0 - max 6)!\n
  > -d x => 3 Please*debug*
  > -d 9 --silent => 3
  > -v 3 --silent -v 9 => 3
  > -v 0 -d 9 => 3
  > -v 3 -d 3 => 3 \nUsing options --debug and -v simultaneously is not supported!\n
  > -v 0 -d 3 --silent => 3 \nUsing*
  > -v 29999999999999999999999999999 => 1 strtoul: Numerical result out of range\n
  > -v ' 2 ' --version => 0 *.*.*.*\n
  > --silent -v 3 --version => 0
  > x--silent -v 9 => 3
  > x--silent --version => 0
  > -v--version => 3 \n\nInvalid*
  > EOF

Words are examined in their order, the first that ends the run decides. Most
options count wherever their text stands in a word.

  $ rows tool <<'EOF'
  > '' => 3 \n\nInvalid argument '' !\n\n
  > bogus --info --silent -v 3 => 3 \n\nInvalid argument 'bogus' !\n\n
  > x-subvid => 3 Please enter at least one controller sub-vendor-id ("1A0F,2B03,...hex-value")!\n
  > -v-vid '' => 3 Please enter at least one controller vendor-id ("1A0F,2B03,...hex-value")!\n
  > -model -x => 3 Please enter at least one controller-model string ("LPe11002-M4, RM480-TC31n, QLE2460... ")!\n
  > x-mod M => 3 \n\nInvalid*
  > -v-vn => 3 Please enter at least one controller vendor-name ("Emulex, QLogic, ... ")!\n
  > -d-dev => 3 Please enter at least one controller device-id ("1A0F,2B03,...hex-value")!\n
  > -dev -x => 3 Please enter at least one controller device-id ("hex-value")!\n
  > x-subdev => 3 Please enter at least one controller sub-device-id ("1A0F,2B03,...hex-value")!\n
  > -subdev /x => 3 Please enter at least one controller sub-device-id ("hex-value")!\n
  > x-pci-id => 3 Please enter at least one pair of vendor- and device-id ("1A0F:2B03,...hex-value")!\n
  > -pci-id /x => 3 Please enter at least one pair of vendor- and device-id ("1A0F:2B03,...hex-value")\n
  > x--conpath => 3 Please enter a path for file FC_HBA_Conditions.txt and/or HBA firmware!\n
  > --conpath /tmp => 3 Please*
  > x--check-for-valid-subsystem x--ctrl-wide-identical --qmr-modex --silent --conpath none => 15
  > x--qmr-mode => 3 \n\nInvalid*
  > --ctrl-vendor-wide-identicalx => 3 \n\nInvalid*
  > --flashx => 3 \n\nInvalid*
  > --simulatex => 3 \n\nInvalid*
  > EOF

Combinations.

  $ rows tool <<'EOF'
  > -vid 1 -vn A -mod M => 3 \n\nCombining options "-vid", "-subvid", "-dev", "-subdev" together with option "-vn" is not supported.\t!\n
  > -subdev 1 -mod M => 3 \n\nCombining*"-mod" is not supported.\t!\n
  > -mod M => 3 \n\nPlease, also specify vendor-names (option "-vn")\n, if using option "-mod"!\n
  > -dev 1 => 3 \n\nPlease*one or more vendor-ids*"-vid"*"-dev"!\n
  > -vid 1 -subvid 1 => 3 \n\nPlease*one or more device-ids*"-dev"*"-subvid"!\n
  > -vid 1 -dev 1 -subdev 1 => 3 \n\nPlease*one or more subvendor-ids*"-subvid"*"-subdev"!\n
  > -vid 1 -dev 1 -subvid 1 => 3 \n\nPlease*one or more subdevice-ids*"-subdev"*"-subvid"!\n
  > EOF

The selection lists, as they are echoed before the missing conditions file ends
the run, and what they refuse.

  $ listed() { tool --conpath none "$@" >out; status=$?; sed '/^env/,$d' out; return $status; }
  $ rows listed <<'EOF'
  > -v 2 -pci-id 1:2 -vn x => 15 Error*
  > -v 5 -pci-id 1:2 => 15 \nList of input pci-ids: "1:2"\n
  > -v 6 -pci-id 19A2:0710,0x19a2::0710:1C3E:11C1:,,1:2 => 15 \nList of*\n\n\tVendor-Id 0x19a2\n\tDevice-Id 0x710\n\tSubVendor-Id 0x0\n\tSubDevice-Id 0x0\n\n\tVendor-Id 0x19a2\n\tDevice-Id 0x710\n\tSubVendor-Id 0x1c3e\n\tSubDevice-Id 0x11c1\n
  > -v 6 -pci-id ,1:2 => 15 *"\n\n\tVendor-Id 0x0\n\tDevice-Id 0x0\n\tSubV*0\n\tSubDevice-Id 0x0\n
  > -v 6 -pci-id 1:2:3:4,5:6 -pci-id 7:8,:, => 15 *"7:8,:,"\n\n*Id 0x7\n*Id 0x8\n*Id 0x3\n*Id 0x4\n\n*Id 0x5\n*Id 0x6\n*0x0\n*0x0\n
  > -v 3 -vid ,10DF,,19A2 -dev 0714 => 15 List of input vendor-ids: ,10DF,,19A2\n0. Vendor-Id: 0x10df\n1. Vendor-Id: 0x19a2\nList of input device-ids: 0714\n0. Device-Id: 0x714\n
  > -v 3 -vid 1 -dev 2 -subvid 1C3E -subdev 11C1 -vid , => 15 *List of input sub-vendor-ids: 1C3E\n0. SubVendor-Id: 0x1c3e\nList of input sub-device-ids: 11C1\n0. SubDevice-Id: 0x11c1\nList of input vendor-ids: ,\n
  > -v 3 -vn 'Emulex, QLogic' -mod 'one,two,a model of more than 19 characters' => 15 List of input vendor-names: Emulex, QLogic\n0. Vendor: Emulex\n1. Vendor:  QLogic\nList of input controller-model strings: one,two*\n0. Model: one\n1. Model: two\n2. Model: a model of more tha\n
  > -pci-id 19A2 => 3
  > -v 2 -pci-id 19A2:0710:1C3E => 3 Error: List of PCI-IDs 19A2:0710:1C3E is incomplete!\n
  > -v 2 -pci-id 19A2:0710:1C3E:11C1:1 => 55
  > -pci-id 19A2:07G0 => 55
  > -v 2 -pci-id '19A2:07G0  ' => 55 Error: Device-Id 07G0 is not a valid hex value!\n
  > -v 2 -pci-id 1:2:80000000:1 => 55 Error: SubVendor-Id 80*
  > -pci-id 10000000000000000:1 => 1 strtoul*
  > -vid 10DF,FFFFFFFF => 55 Error: Vendor-Id FFFFFFFF is not a valid hex value!\n
  > -vid 19A2 -dev ' ' => 55 Error: Device-Id  is not*
  > -subvid x => 55 Error: SubVendor-Id x is not a valid hex value!\n
  > -subdev 1,-1 => 55 Error: SubDevice-Id -1 is not a valid hex value!\n
  > EOF

Values and directories that are too long, and where the files are looked for:
beside the program as it was typed, or in the current directory when it was found
by its bare name.

  $ d=$(printf %0250d 0) && long=$d$d$d$d && mkdir -p $d/$d/$d/$d
  $ typed() { PATH=$PWD:$PATH && cd "$1" && shift && "$@"; }
  $ rows tool <<'EOF'
  > -vn ${long}$(printf %023d 0) --conpath none => 15 Error: Could not open file none/FC_HBA_Conditions.txt\n\nCann't access file none/FC_HBA_Conditions.txt.\n\n
  > -model ${long}$(printf %024d 0) => 3 \n\nValue of option '-model' is too long (at most 1023 characters)!\n\n
  > --conpath ${long}0 => 15 Error: Could not open file 0*0/FC_HBA_Conditions.txt\n\nCann't*
  > --conpath ${long}00 => 3 \n\nPath '0*' is too long (at most 1001 characters)!\n\n
  > EOF
  $ rows typed <<'EOF'
  > . ./name => 15 Error: Could not open file ./FC*
  > $d name => 15 Error: Could not open file /*/0*0/FC*
  > $d/$d/$d/$d name => 3 \n\nPath*
  > . sh -c 'mkdir gone && cd gone && rmdir ../gone && name' => 3 \n\nCannot determine the current directory: No such*
  > EOF
  $ for TMPDIR in "" /var/tmp; do export TMPDIR; tool -v 3 --conpath none | head -n 1; done
  env: Environment variable TMPDIR is empty.
  env: Temporary directory is: /var/tmp.
