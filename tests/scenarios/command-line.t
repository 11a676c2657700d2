  $ . "$TESTDIR/setup.sh"

What only informs ends with 0, at the level 1 of every message.

  $ cp "$CNATOOL" tool && ./tool --help
  
  tool version 1.0.1.0
  
  USAGE:\t tool [ options ] (esc)
  
  Options
  
  --ctrl-wide-identical  | --ctrl-vendor-wide-identical | --check-for-valid-subsystem
  
  -v (1 ... 6 ) | -d (1 ... 6 )
  
  -? | --help (-h)| --show-return-codes (-sr) | --version.
  
  
  
  -pci-id "vendor-id:device-id[:subvendor-id:subdevice-id],[vendor-id:device-id[:...]]"
   <hex-value:hex-value[:hex-value[:hex-value]], ...>; (ex. "19A2:0710,19A2:0714").
  
  --ctrl-wide-identical
     check, whether per controller only identical storage-sub-systems are attached.
     (ex. only NRB Marlovan_SX1 systems are attached?).
  --ctrl-vendor-wide-identical
     check, whether all members of a controller-family are attached to identical
     storage-sub-systems (ex. all Emulex controller are attached to DGC Marlovan_CX1 systems?).
  --check-for-valid-subsystem
     check, whether valid subsystems are attached.
     default (only if option --flash is not set).
  
  --qmr-mode
     program exits with return-code 0 (OK) instead of return-code 13
     (No FC-controller installed).
  
  --silent
     no output-data will be logged or printed (especially in combination with option -v or -d).
  
  --conpath <path>
     path of directory in which FC_HBA_Conditions.txt is diposited.
  
  --flash\t\t\tflash controller. (esc)
  
  --show-return-codes\tshow return-code list. (esc)
  
  --version\t\tshow version of this program. (esc)
  
  --help\t\t\tshow help message. (esc)
  
  -?\tshow help message. (esc)
  
  -v (1,...,6)\tverbose-level (min, 1 to max, 6). (esc)
  
  -d (1,...,6)\tdebug-level (min, 1 to max, 6; output can be found in Merlie_DLL.log). (esc)
  
  Examples:
  
  1) tool -v 1 -pci-id "19A2:0700,19A2:0710:1C3E:11C1" -check-for-valid-subsystem
  
  At least a pair of vendor-id and device-id must be given.
  Also a pair of subvendor-id and subdevice-id can be added.
  Each group of PCI-IDs represents a distinct PCI controller.
  Different PIC-ID groups must be comma separated.
  
  Checks, whether valid and supported storage-sub-systems are attached.
  
  
  2) tool -v 6 -pci-id "19A2:0714"  -ctrl-vendor-wide-identical
  
  Checks, whether all Emulex FCoE controller are attached to valid, supported and
  identical storage-sub-systems.
  
  
  $ "$CNATOOL" --show-return-codes
  
  List of possible return codes
  
     Valid return codes
  
     RET_OK                                   0
     RET_NOT_CTRL_WIDE_IDENTICAL              1
     RET_NOT_CTRL_VENDOR_WIDE_IDENTICAL       2
     RET_BAD_CALL                             3
     RET_INVALID_CTRL_SUBSYSTEM_COMBINATION   4
     RET_FLASH_ERROR                         10
     RET_NO_FC_HBA_CONDITIONS_ENTRY          11
     RET_NO_MATCHING_CTRL_FOUND              12
     RET_NO_FC_CTRL_INSTALLED                13
     RET_FC_HBA_CONDITIONS_MISSING           15
     RET_INFOFILE_MISSING                    16
     RET_FW_NOT_AVAILABLE                    20
     RET_SCLI_NOT_INSTALLED                  21
     RET_KERNEL_MODULE_MISSING               22
     RET_MEMALLOC_FAIL                       54
     RET_FATAL_ERROR                         55
  
  $ each <<'EOF'
  > --version
  > /h -d 0
  > --info bogus
  > bogus --info
  > -v 0 --version
  > --silent --version
  > -d 6 --version
  > --show-return-code
  > EOF
  [--version]
  1.0.1.0
  => 0
  [/h -d 0]
  => 0
  [--info bogus]
  
  cnatool version 1.0.1.0
  => 0
  [bogus --info]
  
  
  Invalid argument 'bogus' !
  
  => 3
  [-v 0 --version]
  => 0
  [--silent --version]
  => 0
  [-d 6 --version]
  => 0
  [--show-return-code]
  
  List of possible return codes
  
     Valid return codes
  
     RET_OK                                   0
     RET_NOT_CTRL_WIDE_IDENTICAL              1
     RET_NOT_CTRL_VENDOR_WIDE_IDENTICAL       2
     RET_BAD_CALL                             3
     RET_INVALID_CTRL_SUBSYSTEM_COMBINATION   4
     RET_FLASH_ERROR                         10
     RET_NO_FC_HBA_CONDITIONS_ENTRY          11
     RET_NO_MATCHING_CTRL_FOUND              12
     RET_NO_FC_CTRL_INSTALLED                13
     RET_FC_HBA_CONDITIONS_MISSING           15
     RET_INFOFILE_MISSING                    16
     RET_FW_NOT_AVAILABLE                    20
     RET_SCLI_NOT_INSTALLED                  21
     RET_KERNEL_MODULE_MISSING               22
     RET_MEMALLOC_FAIL                       54
     RET_FATAL_ERROR                         55
  
  => 0

Levels are read before everything else.

  $ each <<'EOF'
  > -v 7 -h
  > -v
  > -v -1
  > -v ''
  > -v3
  > -version
  > --debug 3
  > -d x
  > -d 9 --silent
  > --silent -v 9
  > -v 0 -d 9
  > -v 3 -d 3
  > -v 29999999999999999999999999999
  > -v ' 2 ' --version
  > --silent -v 3 --version
  > EOF
  [-v 7 -h]
  Please enter a valid verbose-level (-v <verbose-level>; min 0 - max 6)!
  => 3
  [-v]
  Please enter a valid verbose-level (-v <verbose-level>; min 0 - max 6)!
  => 3
  [-v -1]
  Please enter a valid verbose-level (-v <verbose-level>; min 0 - max 6)!
  => 3
  [-v '']
  Please enter a valid verbose-level (-v <verbose-level>; min 0 - max 6)!
  => 3
  [-v3]
  Please enter a valid verbose-level (-v <verbose-level>; min 0 - max 6)!
  => 3
  [-version]
  Please enter a valid verbose-level (-v <verbose-level>; min 0 - max 6)!
  => 3
  [--debug 3]
  Please enter a valid debug-level (-d <debug-level>; min 0 - max 6)!
  => 3
  [-d x]
  Please enter a valid debug-level (-d <debug-level>; min 0 - max 6)!
  => 3
  [-d 9 --silent]
  => 3
  [--silent -v 9]
  => 3
  [-v 0 -d 9]
  => 3
  [-v 3 -d 3]
  
  Using options --debug and -v simultaneously is not supported!
  => 3
  [-v 29999999999999999999999999999]
  strtoul: Numerical result out of range
  => 1
  [-v ' 2 ' --version]
  1.0.1.0
  => 0
  [--silent -v 3 --version]
  => 0

Words are examined in their order, the first that ends the run decides.

  $ each <<'EOF'
  > ''
  > -check-for-valid-subsystem
  > bogus --silent -v 3
  > -subvid
  > -vid ''
  > -mod -x
  > -vn
  > -dev
  > -dev -x
  > -subdev
  > -subdev /x
  > -pci-id
  > -pci-id /x
  > --conpath
  > --conpath /tmp
  > EOF
  ['']
  
  
  Invalid argument '' !
  
  => 3
  [-check-for-valid-subsystem]
  
  
  Invalid argument '-check-for-valid-subsystem' !
  
  => 3
  [bogus --silent -v 3]
  
  
  Invalid argument 'bogus' !
  
  => 3
  [-subvid]
  Please enter at least one controller sub-vendor-id ("1A0F,2B03,...hex-value")!
  => 3
  [-vid '']
  Please enter at least one controller vendor-id ("1A0F,2B03,...hex-value")!
  => 3
  [-mod -x]
  Please enter at least one controller-model string ("LPe11002-M4, RM480-TC31n, QLE2460... ")!
  => 3
  [-vn]
  Please enter at least one controller vendor-name ("Emulex, QLogic, ... ")!
  => 3
  [-dev]
  Please enter at least one controller device-id ("1A0F,2B03,...hex-value")!
  => 3
  [-dev -x]
  Please enter at least one controller device-id ("hex-value")!
  => 3
  [-subdev]
  Please enter at least one controller sub-device-id ("1A0F,2B03,...hex-value")!
  => 3
  [-subdev /x]
  Please enter at least one controller sub-device-id ("hex-value")!
  => 3
  [-pci-id]
  Please enter at least one pair of vendor- and device-id ("1A0F:2B03,...hex-value")!
  => 3
  [-pci-id /x]
  Please enter at least one pair of vendor- and device-id ("1A0F:2B03,...hex-value")
  => 3
  [--conpath]
  Please enter a path for file FC_HBA_Conditions.txt and/or HBA firmware!
  => 3
  [--conpath /tmp]
  Please enter a path for file FC_HBA_Conditions.txt and/or HBA firmware!
  => 3

Combinations.

  $ each <<'EOF'
  > -vid 1 -vn A
  > -subdev 1 -vn A -mod M
  > -vid 1 -mod M
  > -mod M
  > -dev 1
  > -vid 1 -subvid 1
  > -vid 1 -dev 1 -subdev 1
  > -vid 1 -dev 1 -subvid 1
  > EOF
  [-vid 1 -vn A]
  
  
  Combining options "-vid", "-subvid", "-dev", "-subdev" together with option "-vn" is not supported.\t! (esc)
  => 3
  [-subdev 1 -vn A -mod M]
  
  
  Combining options "-vid", "-subvid", "-dev", "-subdev" together with option "-vn" is not supported.\t! (esc)
  => 3
  [-vid 1 -mod M]
  
  
  Combining options "-vid", "-subvid", "-dev", "-subdev" together with option "-mod" is not supported.\t! (esc)
  => 3
  [-mod M]
  
  
  Please, also specify vendor-names (option "-vn")
  , if using option "-mod"!
  => 3
  [-dev 1]
  
  
  Please, also specify one or more vendor-ids (option "-vid")
  , if using option "-dev"!
  => 3
  [-vid 1 -subvid 1]
  
  
  Please, also specify one or more device-ids (option "-dev")
  , if using option "-subvid"!
  => 3
  [-vid 1 -dev 1 -subdev 1]
  
  
  Please, also specify one or more subvendor-ids (option "-subvid")
  , if using option "-subdev"!
  => 3
  [-vid 1 -dev 1 -subvid 1]
  
  
  Please, also specify one or more subdevice-ids (option "-subdev")
  , if using option "-subvid"!
  => 3

The selection lists, as they are echoed; a missing conditions file ends the run.

  $ each <<'EOF' | grep -v -e env: -e Cann -e conditions -e Error:.Could -e '^$'
  > -v 6 --conpath none -pci-id 19A2:0710,0x19a2::0710:1C3E:11C1:,,1:2
  > -v 6 --conpath none -pci-id ,1:2
  > -v 6 --conpath none -pci-id 1:2:3:4,5:6 -pci-id 7:8,:,
  > -v 3 --conpath none -vid ,10DF,,19A2 -dev 0714
  > -v 3 --conpath none -vid 19A2 -dev 0714 -subvid 1C3E -subdev 11C1 -vid ,
  > -v 3 --conpath none -vn 'Emulex, QLogic' -mod 'one,two,a model of more than 19 characters'
  > EOF
  [-v 6 --conpath none -pci-id 19A2:0710,0x19a2::0710:1C3E:11C1:,,1:2]
  List of input pci-ids: "19A2:0710,0x19a2::0710:1C3E:11C1:,,1:2"
  \tVendor-Id 0x19a2 (esc)
  \tDevice-Id 0x710 (esc)
  \tSubVendor-Id 0x0 (esc)
  \tSubDevice-Id 0x0 (esc)
  \tVendor-Id 0x19a2 (esc)
  \tDevice-Id 0x710 (esc)
  \tSubVendor-Id 0x1c3e (esc)
  \tSubDevice-Id 0x11c1 (esc)
  => 15
  [-v 6 --conpath none -pci-id ,1:2]
  List of input pci-ids: ",1:2"
  \tVendor-Id 0x0 (esc)
  \tDevice-Id 0x0 (esc)
  \tSubVendor-Id 0x0 (esc)
  \tSubDevice-Id 0x0 (esc)
  => 15
  [-v 6 --conpath none -pci-id 1:2:3:4,5:6 -pci-id 7:8,:,]
  List of input pci-ids: "1:2:3:4,5:6"
  \tVendor-Id 0x1 (esc)
  \tDevice-Id 0x2 (esc)
  \tSubVendor-Id 0x3 (esc)
  \tSubDevice-Id 0x4 (esc)
  \tVendor-Id 0x5 (esc)
  \tDevice-Id 0x6 (esc)
  \tSubVendor-Id 0x0 (esc)
  \tSubDevice-Id 0x0 (esc)
  List of input pci-ids: "7:8,:,"
  \tVendor-Id 0x7 (esc)
  \tDevice-Id 0x8 (esc)
  \tSubVendor-Id 0x3 (esc)
  \tSubDevice-Id 0x4 (esc)
  \tVendor-Id 0x5 (esc)
  \tDevice-Id 0x6 (esc)
  \tSubVendor-Id 0x0 (esc)
  \tSubDevice-Id 0x0 (esc)
  => 15
  [-v 3 --conpath none -vid ,10DF,,19A2 -dev 0714]
  List of input vendor-ids: ,10DF,,19A2
  0. Vendor-Id: 0x10df
  1. Vendor-Id: 0x19a2
  List of input device-ids: 0714
  0. Device-Id: 0x714
  => 15
  [-v 3 --conpath none -vid 19A2 -dev 0714 -subvid 1C3E -subdev 11C1 -vid ,]
  List of input vendor-ids: 19A2
  0. Vendor-Id: 0x19a2
  List of input device-ids: 0714
  0. Device-Id: 0x714
  List of input sub-vendor-ids: 1C3E
  0. SubVendor-Id: 0x1c3e
  List of input sub-device-ids: 11C1
  0. SubDevice-Id: 0x11c1
  List of input vendor-ids: ,
  => 15
  [-v 3 --conpath none -vn 'Emulex, QLogic' -mod 'one,two,a model of more than 19 characters']
  List of input vendor-names: Emulex, QLogic
  0. Vendor: Emulex
  1. Vendor:  QLogic
  List of input controller-model strings: one,two,a model of more than 19 characters
  0. Model: one
  1. Model: two
  2. Model: a model of more tha
  => 15
  $ each <<'EOF'
  > -pci-id 19A2
  > -v 2 -pci-id 19A2:0710:1C3E
  > -v 2 -pci-id 19A2:0710:1C3E:11C1:1
  > -pci-id 19A2:07G0
  > -v 2 -pci-id '19A2:07G0  '
  > -v 2 -pci-id 1:2:80000000:1
  > -pci-id 10000000000000000:1
  > -vid 10DF,FFFFFFFF
  > -vid 19A2 -dev ' '
  > -subvid x
  > -subdev -1
  > -subdev 1,-1
  > -dev 123456789
  > EOF
  [-pci-id 19A2]
  => 3
  [-v 2 -pci-id 19A2:0710:1C3E]
  Error: List of PCI-IDs 19A2:0710:1C3E is incomplete!
  => 3
  [-v 2 -pci-id 19A2:0710:1C3E:11C1:1]
  => 55
  [-pci-id 19A2:07G0]
  => 55
  [-v 2 -pci-id '19A2:07G0  ']
  Error: Device-Id 07G0 is not a valid hex value!
  => 55
  [-v 2 -pci-id 1:2:80000000:1]
  Error: SubVendor-Id 80000000 is not a valid hex value!
  => 55
  [-pci-id 10000000000000000:1]
  strtoul: Numerical result out of range
  => 1
  [-vid 10DF,FFFFFFFF]
  Error: Vendor-Id FFFFFFFF is not a valid hex value!
  => 55
  [-vid 19A2 -dev ' ']
  Error: Device-Id  is not a valid hex value!
  => 55
  [-subvid x]
  Error: SubVendor-Id x is not a valid hex value!
  => 55
  [-subdev -1]
  Please enter at least one controller sub-device-id ("hex-value")!
  => 3
  [-subdev 1,-1]
  Error: SubDevice-Id -1 is not a valid hex value!
  => 55
  [-dev 123456789]
  
  
  Please, also specify one or more vendor-ids (option "-vid")
  , if using option "-dev"!
  => 3

Values and directories that are too long.

  $ each <<'EOF'
  > -vn $(printf %01023d 0) -v 2 --conpath none
  > -vn $(printf %01024d 0)
  > -model $(printf %01024d 0)
  > --conpath $(printf %01001d 0)
  > --conpath $(printf %01002d 0)
  > EOF
  [-vn $(printf %01023d 0) -v 2 --conpath none]
  Error: Could not open file none/FC_HBA_Conditions.txt
  
  Cann't access file none/FC_HBA_Conditions.txt.
  
  => 15
  [-vn $(printf %01024d 0)]
  
  
  Value of option '-vn' is too long (at most 1023 characters)!
  
  => 3
  [-model $(printf %01024d 0)]
  
  
  Value of option '-model' is too long (at most 1023 characters)!
  
  => 3
  [--conpath $(printf %01001d 0)]
  Error: Could not open file 00000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000/FC_HBA_Conditions.txt
  
  Cann't access file 00000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000/FC_HBA_Conditions.txt.
  
  => 15
  [--conpath $(printf %01002d 0)]
  
  
  Path '000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000' is too long (at most 1001 characters)!
  
  => 3

Where the files are looked for: beside the program as it was typed, or in the
current directory when it was found by its bare name.

  $ ./tool; echo "=> $?"
  Error: Could not open file ./FC_HBA_Conditions.txt
  
  Cann't access file ./FC_HBA_Conditions.txt.
  
  => 15
  $ mkdir sub && cd sub && PATH=..:$PATH tool | sed "s,$PWD,CURRENT,"; cd ..
  Error: Could not open file CURRENT/FC_HBA_Conditions.txt
  
  Cann't access file CURRENT/FC_HBA_Conditions.txt.
  
  $ d=$(printf %0250d 0) && mkdir -p $d/$d/$d/$d
  $ (PATH=$PWD:$PATH && cd $d/$d/$d/$d && tool) | tail -c 46
  0000' is too long (at most 1001 characters)!
  
  $ for TMPDIR in "" /var/tmp; do export TMPDIR; "$CNATOOL" -v 3 --conpath none | head -n 1; done
  env: Environment variable TMPDIR is empty.
  env: Temporary directory is: /var/tmp.
