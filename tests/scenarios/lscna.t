  $ . "$TESTDIR/setup.sh"
  $ lscna() { "${CNATOOL%/*}/lscna" "$@"; }
  $ project=$TESTDIR/../..

The example's screen, as the man page and the README show it.

  $ lay_blade && lscna --simulate --conpath blade >screen
  [1]
  $ shown() { sed -n '/^ADAPTER  /,/Marlovan_CX$/p' "$project/$1" | sed 's/\\-/-/g' | diff - screen; }
  $ shown man/lscna.8.in && shown README.md && grep -c 'not allowed' screen
  2

What is to be looked at. The rows begin with a blade that is in order: both adapters see DGC
storage, which their records 1 and 2 allow.

  $ looked() { lscna -C blade "$@" >screen; status=$?; sed -n '/^To look at/,$s/^  //p' screen; return $status; }
  $ lay_good() { lay_blade && sed -i 's/: NRB/: DGC/; s/_SX1/_CX1/' blade/VM20713302_*_target_mapping.out; }
  $ record() { sed -i "/0714.*11C1/s/$1/$2/" $conditions; }
  $ flash_record() { sed -i "/0700.*11C1/s/$1/$2/" $conditions; }
  $ ports() { sed -i "$1" blade/local_hba_list.out; }
  $ report() { printf "$2" >"blade/VM10250117_$1.out"; }
  $ mapped() { report 2_target_mapping "Target Mapping for 10:00:00:00:c9:a1:00:11\n\n\n\n$1"; }
  $ rows looked lay_good <<'END'
  > -s => 0
  > mapped 'Vendor ID: NRB\nProduct ID: X' :: -s => 1 *17, function 2: record 1 allows DGC Marlovan_CX,CX4- and NRB *
  > record '| DGC.*' '| DGC | | x' && mapped 'Vendor ID: NRB' :: -s => 1 *17, function 2: record 1 allows any DGC
  > # Only the last LUN is judged.
  > mapped 'Vendor ID: NRB\nProduct ID: X\nVendor ID: DGC\nProduct ID: Marlovan_CX1' :: -s => 1
  > | *17, function 2: its report also names NRB X, which record 1 *
  > # No record is for the ports: the nearest one is named.
  > record '19A2 | 0714' '0714 | 19A2' :: -s => 1
  > | *17, functions 2 and 3: no record has 19A2:0714:1C3E:11C1; record 1 has vendor and device id swapped*
  > record 11C1 11C7 :: -s => 1 *; record 1 has the same vendor and device id only*
  > sed -i /0714/d $conditions :: -s => 1
  > | *: add 'Emulex Corporation | CNA-10102-FX | 19A2 | 0714 | 1C3E | 11C2 | ...'\n*11C1 | ...'
  > record 10102-F 9 :: -s => 1 *17, *record 1 has its ids, but is for Emulex CNA-9, not *; a flash takes *
  > # Ports that are not known.
  > report 2_target_mapping '' :: -s => 1 *17, function 2: its target-mapping report has not its title*
  > report 3_hba_attributes ERROR :: -s => 1 *17, function 3: its attributes report has not its title*
  > ports '/^Serial/s/VM1.*/n\/a/' :: -s => 1 n/a, functions 2 and 3: no serial number*
  > rm blade/VM10250117_0_hba* :: -s => 1 the inventory ended at blade//VM10250117_0_hba_attributes.out, *
  > # The flash.
  > ports '/^Port Number/s/: ./: 3/' :: -s => 1 ...\n*17, functions 0, 1, 2 and 3: the adapter has no flash port*\n...
  > rm blade/fm* :: -s => 1 *17, function 0: no file in blade/ is the firmware image 'fm10102-' of record 3*20
  > touch blade/CNA-10102-FX/x.ufi :: -s => 1 *function 0: blade/*.ufi and blade/*.ufi match the firmware image *
  > sed -n /0714.*11C1/p $conditions >x && cat x >>$conditions :: -s => 1 records 1 and 6 have the same four ids*
  > # The selection.
  > -s -p 19A2:0714,1:2:3:4 => 1 --pci-id: no port has 1:2:3:4
  > -s -p 19A2:0714,,19A2:0700 => 1 --pci-id: '19A2:0700' is not read*
  > # A flash compares neither manufacturer nor model.
  > flash_record 10102-F 9 :: -s => 1 *17, function 0: record 3 has its ids, but is for Emulex CNA-9, *
  > flash_record '19A2 | 0700' '0700 | 19A2' :: -s => 1 *17, function 0: * swapped*
  > flash_record 'fm10102- *| ' '&fm' :: -s => 1 *17, function 0: *would be written as firmware and as BIOS*
  > sed -i /0700.*11C1/d $conditions :: -s -p 19A2:0700 => 1 *17, function 0: no record has *; a flash writes nothing
  > END

Mistakes in the conditions file, with their lines.

  $ noted() { looked "$@" | sed -n 's/^blade.FC_HBA_Conditions.txt://p'; }
  $ written() { printf "$1" >$conditions; }
  $ rows noted lay_good <<'END'
  > written '\357\273\277#\r\n#\0\n#\r\n' :: -s => 0 1: a byte order mark*\n1: a carriage*\n2: NUL bytes*\n no record*
  > written '# %01022d\n' :: -s => 0 1: a line of more than 1023 characters*\n1: no bar*
  > rm $conditions :: -s => 0  can't be opened: write it*
  > written '\n# a | b\n---+--+\nE | 1 # b\n' :: -s => 0 4: a number sign makes the whole line a comment*
  > written 'E|M|1|2|3\n\nE|M\n' :: -s => 0 1: a record without all four ids*\n3: a record*
  > written 'E|M|1|2|3|4|x|x|f|b|x|x|%010d|%020d|x|%010d\n' :: -s => 0 1: storage vendor '0*0' is longer than 9 *refuses the file\n1: *
  > # cnatool refuses the file: the note of the ports would follow from this one.
  > record 11C1 11G1 :: -s => 0 21: subdevice id '11G1' is not hexadecimal: cnatool refuses the file
  > END

The verdicts of one adapter's ports, which are moved to functions 6 and 7 of the other one: a
fourth FCoE port takes the place of the third in a check.

  $ lay_good && mapped 'no target\n' && report 3_target_mapping ''
  $ ports '/^Serial/s/VM2.*/VM10250117/; /c9:b2:00:1[12]/,/^$/{/^PCI F/s/: ./&X/; s/2X/6/; s/3X/7/}'
  $ for port in 6 7; do cp blade/VM10250117_2_hba_attributes.out blade/VM10250117_${port}_hba_attributes.out; done
  $ for port in 6 7; do cp blade/VM20713302_$((port - 4))_target_mapping.out blade/VM10250117_${port}_target_mapping.out; done
  $ looked -s | grep -c 'function 6: a check does not come to it'
  1
  $ sed -n 's/^VM10250117 *\([0-9]\).*FCoE.*   *\([a-z].*\)/\1 \2/p' screen
  2 no storage
  3 not known
  6 not judged
  7 allowed

JSON holds the same, whatever bytes the reports hold, and null for what is not known.

  $ lay_blade && rm blade/is* blade/VM10250117_3_t*
  $ sed -i 's/NRB/N"\\R\o303\o244\o377\x01/' blade/VM20713302_2_target_mapping.out
  $ sed -i 's/^\(Sub Device ID *: \).*/\1?/' blade/VM20713302_1_hba_attributes.out
  $ lscna -s -C blade --json | python3 -c 'if True:
  >     import json, sys
  >     found = json.load(sys.stdin)
  >     without_id, fx = found["ports"][1:3]
  >     print(without_id["pci-id"], fx["verdict"], fx["record"], fx["reason"], ascii(fx["storage"]))
  >     for flash in found["flashes"]: print(flash["record"], flash["firmware"], flash["bios"])
  >     print(*fx, *found["flashes"][0], len(found["notes"]))'
  None not allowed 2 record 2 allows DGC Marlovan_CX {'vendor': 'N \\R\xe4\ufffd\x01', 'product': 'Marlovan_SX1', 'version': '7.12'}
  4 {'pattern': '*.ufi', 'files': ['blade/CNA-10102-FX/fx-4.6.142.10.ufi']} {'pattern': '*.grp', 'files': ['blade/CNA-10102-FX/fx-bios-4.6.141.grp']}
  3 {'pattern': 'fm10102-', 'files': ['blade/fm10102-4.6.142.10.ufi']} None
  5 {'pattern': 'is10102-', 'files': []} None
  adapter fn port type model wwn mac bus pci-id firmware storage record line verdict reason adapter fn record firmware bios 3

The command line: what can't be listed ends with 2 and a message.

  $ rows lscna lay_blade <<'END'
  > -V => 0 lscna *.*.*.*
  > --help => 0 Usage: lscna *\n...\n  VERDICT   *
  > -x => 2 lscna: invalid option -- 'x'\nlscna: a bad call*
  > -s -C '' => 2 lscna: --conpath: the name of the directory is empty
  > -s -C "$PWD/blade" -p 19A2:0712 => 0 ...
  > -s -C blade -p 19A2:07G0 => 2 lscna: --pci-id: not a list*
  > rm blade/local* :: -s -C blade => 2 lscna: the list of ports, local_hba_list.out, can't be read
  > echo none >blade/local_hba_list.out :: -s -C blade => 3 lscna: the list of ports names no port
  > report 0_hba_attributes 'HBA Attributes for\nDevice ID: 10000000000000000' :: -s -C blade => 2 strtoul*\nlscna*
  > END

By the vendor's CLI, in turn with other runs; a terminal shows what is waited for.

  $ standin=${CNATOOL_STANDIN%/*}/lscna_standin && real_lscna() { "$standin" -C blade "$@"; }
  $ rows real_lscna lay_standin <<'END'
  > -p 19A2:0714:1C3E:11C1 => 0 ...
  > on targetmapping3 'exit 1' :: -p 19A2:0714:1C3E:11C1 => 1 ...\n*the CLI's command targetmapping ended with exit status 1, *
  > on listhbas1 'exit 1' :: -J => 2 ...\n*"error": "the CLI's command listhbas failed",\n...
  > rm hbacmd :: -J => 2 ...\n*"error": "the vendor's CLI is not installed",\n...
  > END
  $ lay_standin && (flock 9 && sleep 0.5) 9<hbacmd &
  $ sleep 0.2; script -qec "'$standin' -C blade" /dev/null </dev/null | tr '\r' '\n' | grep -e ^waiting -e ^adapter -e '^port 5'
  waiting for another run
  adapter list
  port 5 of 11: attributes
  port 5 of 11: target mapping
