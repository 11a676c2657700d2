  $ . "$TESTDIR/setup.sh"

What only informs; the name is the one that was typed. The help is written down in one
place, so that a checksum does.

  $ cp "$CNATOOL" name && ./name --help | sed 2d | cksum
  3350007101 2035
  $ rows tool <<'EOF'
  > --info bogus => 0 \ncnatool version *.*.*.*
  > '-?' => 0 \ncnatool version *\n\nUSAGE:\t cnatool [ options ]\n...
  > # A slash counts as a dash; levels come first and may silence what follows.
  > /h -d 0 => 0
  > -v 0 --version => 0
  > -d 6 --version => 0
  > --show-return-codes => 0 \nList of possible return codes\n\n   Valid return codes\n\n   RET_OK   *0\n...
  > --show-return-code => 0 \nList of possible return codes\n...
  > EOF

Levels are read before everything else, whatever silences them before that.

  $ rows tool <<'EOF'
  > -v 7 -h => 3 Please enter a valid verbose-level (-v <verbose-level>; min 0 - max 6)!
  > -v => 3 Please enter a valid verbose*
  > -v 0x3 => 3 Please enter a valid verbose*
  > -v3 4 => 3 Please enter a valid verbose*
  > --debug 3 => 3 Please enter a valid debug-level (-d <debug-level>; min 0 - max 6)!
  > -v 3 --silent -v 9 => 3
  > -v 3 -d 3 => 3 \nUsing options --debug and -v simultaneously is not supported!
  > -v 29999999999999999999999999999 => 1 strtoul: Numerical result out of range
  > -v ' 2 ' --version => 0 *.*.*.*
  > --silent -v 3 --version => 0
  > x--silent --version => 0
  > -v--version => 3 \n\nInvalid argument*\n
  > EOF

Words are examined in their order, the first that ends the run decides. Most options
count wherever their text is in a word.

  $ rows tool <<'EOF'
  > '' => 3 \n\nInvalid argument '' !\n
  > bogus --info --silent -v 3 => 3 \n\nInvalid argument 'bogus' !\n
  > x-subvid => 3 Please enter at least one controller sub-vendor-id ("1A0F,2B03,...hex-value")!
  > -v-vid '' => 3 Please enter at least one controller vendor-id ("1A0F,2B03,...hex-value")!
  > -dev -x => 3 Please enter at least one controller device-id ("hex-value")!
  > -pci-id /x => 3 Please enter at least one pair of vendor- and device-id ("1A0F:2B03,...hex-value")
  > # An absolute path begins like an option.
  > --conpath /tmp => 3 Please enter a path for file FC_HBA_Conditions.txt and/or HBA firmware!
  > x--check-for-valid-subsystem x--ctrl-wide-identical --qmr-modex --silent x--conpath none => 15
  > x-mod M => 3 \n\nInvalid argument*\n
  > --flashx => 3 \n\nInvalid argument*\n
  > --simulatex => 3 \n\nInvalid argument*\n
  > EOF

Options that need, or exclude, each other.

  $ rows tool <<'EOF'
  > -vid 1 -vn A -mod M => 3
  > |
  > | \nCombining options "-vid", "-subvid", "-dev", "-subdev" together with option "-vn" is not supported.\t!
  > -subdev 1 -mod M => 3 \n\nCombining options*"-mod" is not supported.\t!
  > -mod M => 3 \n\nPlease, also specify vendor-names (option "-vn")\n, if using option "-mod"!
  > -dev 1 => 3 \n\nPlease, also specify one or more vendor-ids*"-vid")\n*"-dev"!
  > -vid 1 -subvid 1 => 3 \n\nPlease, also specify one or more device-ids*"-dev")\n*"-subvid"!
  > -vid 1 -dev 1 -subvid 1 => 3 \n\nPlease, also specify one or more subdevice-ids*"-subdev")\n*"-subvid"!
  > EOF

The selection lists, as they are echoed before the missing conditions file ends the run.

  $ listed() { tool --conpath none "$@" >out; status=$?; sed '/^env/,$d' out; return $status; }
  $ rows listed <<'EOF'
  > -v 2 -pci-id 1:2 -vn x => 15 Error: Could not open file none/FC_HBA_Conditions.txt\n\nCann't*\n
  > # Colons in a row are one, and two commas in a row end the list.
  > -v 6 -pci-id 0x19a2::0710:1C3E:11C1:,,1:2 => 15
  > | \nList of input pci-ids: "0x19a2::0710:1C3E:11C1:,,1:2"
  > | \n\tVendor-Id 0x19a2\n\tDevice-Id 0x710\n\tSubVendor-Id 0x1c3e\n\tSubDevice-Id 0x11c1
  > -v 6 -pci-id ,1:2 => 15 \nList*\n\n*Id 0x0\n*Id 0x0\n*Id 0x0\n*Id 0x0
  > # A second list overwrites the values of the first that it has values for.
  > -v 6 -pci-id 1:2:3:4,5:6 -pci-id 7:8,:, => 15 ...
  > | *"7:8,:,"\n\n* 0x7\n* 0x8\n* 0x3\n* 0x4\n\n* 0x5\n* 0x6\n* 0x0\n* 0x0
  > -v 3 -vid ,10DF,,19A2 -dev 0714 -subvid 1C3E -subdev 11C1 => 15
  > | List of input vendor-ids: ,10DF,,19A2\n0. Vendor-Id: 0x10df\n1. Vendor-Id: 0x19a2
  > | List of input device-ids: 0714\n0. Device-Id: 0x714
  > | List of input sub-vendor-ids: 1C3E\n0. SubVendor-Id: 0x1c3e
  > | List of input sub-device-ids: 11C1\n0. SubDevice-Id: 0x11c1
  > # Names keep their blanks and are cut to 19 characters.
  > -v 3 -vn 'Emulex, QLogic' -mod 'a model of more than 19 characters' => 15
  > | List of input vendor-names: Emulex, QLogic\n0. Vendor: Emulex\n1. Vendor:  QLogic
  > | List of input controller-model strings: a model*\n0. Model: a model of more tha
  > EOF

What they refuse.

  $ rows listed <<'EOF'
  > -v 2 -pci-id 19A2:0710:1C3E => 3 Error: List of PCI-IDs 19A2:0710:1C3E is incomplete!
  > -v 2 -pci-id 19A2:0710:1C3E:11C1:1 => 55
  > -v 2 -pci-id '19A2:07G0  ' => 55 Error: Device-Id 07G0 is not a valid hex value!
  > -vid 10DF,FFFFFFFF => 55 Error: Vendor-Id FFFFFFFF is not a valid hex value!
  > -vid 19A2 -dev ' ' => 55 Error: Device-Id  is not a valid hex value!
  > -subdev 1,-1 => 55 Error: SubDevice-Id -1 is not a valid hex value!
  > EOF

Values and directories that are too long, and where the files are looked for: beside the
program as it was typed, or in the current directory when it was found by its bare name.

  $ d=$(printf %0250d 0) && long=$d$d$d$d && mkdir -p $d/$d/$d/$d
  $ typed() { PATH=$PWD:$PATH && cd "$1" && shift && "$@"; }
  $ rows tool <<'EOF'
  > # Values have at most 1,023 characters, directories 1,001.
  > -vn ${long}$(printf %023d 0) --conpath none => 15 Error: Could not open file none/FC_HBA_Conditions.txt\n\nCann't*\n
  > -model ${long}$(printf %024d 0) => 3 \n\nValue of option '-model' is too long (at most 1023 characters)!\n
  > --conpath ${long}0 => 15 Error: Could not open file 0*0/FC_HBA_Conditions.txt\n\nCann't access file 0*\n
  > --conpath ${long}00 => 3 \n\nPath '0*' is too long (at most 1001 characters)!\n
  > EOF
  $ rows typed <<'EOF'
  > . ./name => 15 Error: Could not open file ./FC_HBA_Conditions.txt\n\nCann't access file ./FC_HBA_Conditions.txt.\n
  > $d name => 15 Error: Could not open file /*/0*0/FC_HBA_Conditions.txt\n...
  > $d/$d/$d/$d name => 3 \n\nPath*\n
  > . sh -c 'mkdir gone && cd gone && rmdir ../gone && name' => 3
  > |
  > | \nCannot determine the current directory: No such file or directory\n
  > EOF
  $ for TMPDIR in "" /var/tmp; do export TMPDIR; tool -v 3 --conpath none | head -n 1; done
  env: Environment variable TMPDIR is empty.
  env: Temporary directory is: /var/tmp.
