  $ . "$TESTDIR/setup.sh"

The statuses of the checks. The first check that is asked for decides whether a flash
follows.

  $ fm_ports_differ() { sed -i 's/: DGC/: NRB/; s/_CX1/_SX1/' blade/VM10250117_3_target_mapping.out; }
  $ both_checks='--ctrl-wide-identical --ctrl-vendor-wide-identical'
  $ rows simulated lay_blade <<'EOF'
  > # FM sees DGC, FX sees NRB; the vendor-wide status comes first.
  > --silent --ctrl-wide-identical $BOTH => 0
  > --silent $both_checks $BOTH => 2
  > -v 2 --ctrl-vendor-wide-identical $BOTH => 2 ...
  > | vendor specific reference-sub-system 1 >NRB< >DGC<.
  > | \t\tAt least one sub-system differs from vendor specific reference-sub-system (different vendors).\n\n...
  > | vendor specific reference-sub-system 0 >NRB< >DGC<.\n...
  > fm_ports_differ :: -v 2 --ctrl-wide-identical $FM => 1 ...
  > | \t\tThis sub-system differs from controller specific reference-sub-system.
  > | \t\t\tVendor: *PCI function: 3
  > | \nvendor specific reference-sub-system 0 >DGC< >DGC<.
  > | \t\tAt least one*\n...
  > fm_ports_differ :: --silent $FM => 0
  > # A flash after a check that has passed, with the status of one that has not.
  > --flash $both_checks $BOTH => 2 ...\n\tNow start flashing the firmware.\n...
  > fm_ports_differ :: --flash --check-for-valid-subsystem --ctrl-wide-identical $FM => 1 ...
  > | \tNow start flashing the firmware.\n...
  > # No flash after one that has failed; invalid storage fails every check.
  > fm_ports_differ :: -v 3 --flash --ctrl-wide-identical $FM => 1 ...\nOverallSubSystemCheck returned: 0*
  > -v 3 --flash --ctrl-vendor-wide-identical $BOTH => 2 ...\nOverallSubSystemCheck returned: 0*
  > -v 6 --flash --check-for-valid-subsystem $FX => 4 ...\nOverallSubSystemCheck returned: 0*
  > -v 3 --flash --ctrl-wide-identical $FX => 4 ...\nOverallSubSystemCheck returned: 0*
  > -v 3 --flash --ctrl-vendor-wide-identical $FX => 4 ...\nOverallSubSystemCheck returned: 0*
  > EOF

What a selection finds.

  $ without_ports() { echo "ERROR: no adapter" >blade/local_hba_list.out; }
  $ without_records() { echo '# none' >$conditions; }
  $ without_flash_port() { sed -i 's/^\(Port Number *\): ./\1: 3/' blade/local_hba_list.out; }
  $ rows simulated lay_blade <<'EOF'
  > --silent -vid 19A2 -dev 0714 -subvid 1C3E -subdev 11C3 => 12
  > --silent -pci-id 19A2:0714:1:11C1 => 12
  > --silent --qmr-modex => 0
  > --silent -pci-id 19A2:0712:1C3E:11D0 => 0
  > # Names select nothing.
  > -v 3 -vn Emulex => 12 ...\nOverallSubSystemCheck returned: 1*
  > # A port that is selected counts as found without a record, too.
  > without_records :: --silent $FM => 0
  > without_ports :: --qmr-mode => 0 \nNo Blade*\n
  > # No port with the number of a flash port.
  > without_flash_port :: $FM => 22
  > EOF

The walk over an adapter's ports, in the order of their functions: storage that is not
allowed ends it, and a port without storage does not.

  $ fm_sees() { printf "$1" >blade/VM10250117_2_target_mapping.out; }
  $ listed_backwards() { sed -i '/^PCI Function/y/23/32/' blade/local_hba_list.out; }
  $ other_maker() { sed -i "s/^Mfg.*/Mfg: emulex/" blade/local_hba_list.out; }
  $ other_model() { sed -i 's/10102-F /10102-FMX /' $conditions; }
  $ walk() {
  >     simulated "$@" >out; status=$?
  >     sed -n 's/^\t\tVendor.*PCI f/F/p; s/^\t\t\(Take this\|This\|All\|Subsystem\) /\1 /p' out; return $status
  > }
  $ rows walk lay_blade <<'EOF'
  > # The second selected port begins the walk again: from level 4 on this tells what is done.
  > -v 4 $FM => 0
  > | Function: 2
  > | Take this sub-system as reference-sub-system for this controller-device.
  > | Take this sub-system as reference-sub-system for vendor Emulex Corporation.
  > | Function: 3
  > | This sub-system is consistent with controller specific reference-sub-system (only vendor-id was checked).
  > | All sub-systems are consistent with vendor specific reference-sub-system (only vendor-id was checked) 10:*.
  > | Function: 2
  > | Subsystem check already done => continue.
  > | Function: 3
  > | Subsystem check already done => continue.
  > # The ports come into their order before the flash ports are sought.
  > listed_backwards :: -v 1 $FM => 0 Function: 2\nFunction: 3
  > # Invalid storage ends the walk, which the second port begins again.
  > fm_sees '\n\n\n\nVendor ID: dgc' :: -v 2 $FM => 4
  > | Function: 2\nTake * controller-device.
  > | Function: 3\nTake * controller-device.\nTake * vendor *
  > fm_sees '' :: -v 1 $FM => 0 Function: 2\nFunction: 3
  > # A port of another maker or model than the record's is passed over.
  > other_maker :: $FM => 0
  > other_model :: $FM => 0
  > EOF

Storage is listed when it names its vendor; a port without a serial number is passed over.

  $ fx_serial() { sed -i "/^Serial/s%VM2.*%$1%" blade/local_hba_list.out; }
  $ no_flash_port() { sed -i '/^Serial/s/VM.*/n.a/;/^Port Number/s/:.*/:3/' blade/local_hba_list.out; }
  $ rows simulated lay_blade <<'EOF'
  > fm_sees '\n\n\n\nVendor ID: a long storage vendor' :: -v 4 $FM => 4 ...
  > |   *VM10250117  port 0  function 2\n\n\ta long storage vendor\n\t\n\t\n\n  Emu*\n...
  > fm_sees '\n\n\n\nType: x' :: -v 4 $FM => 4 ...\n  *VM10250117  port 0  function 2\n\n  Emulex*function 3\n...
  > -v 6 $FX => 4 ...\n\n\n\t\tInvaild attached storage sub-system found.\n\t\t\t\tNRB\n\t\t\t\t*\n\t\t\t\t7.12\n\n...
  > fx_serial n/a :: -v 1 $BOTH => 0
  > | \t\tNo serial number => SKIP!\n...
  > | \t\t\tNo serial number => SKIP!\n...
  > fx_serial n/ab :: -v 6 $BOTH => 0 ...
  > | \tVendor: Emulex Corporation Model: CNA-10102-FX; SN: n/ab port: 0 function: 0
  > | \tNo serial number => SKIP\n---------+*\n\tVendor*\n...
  > # "n.a" is a serial number like others.
  > no_flash_port :: -v 1 => 22 Error: Could not open file blade//n.a_2_hba_attributes.out
  > EOF

The storage of one port, NRB Marlovan_SX1, against the subsystems that its record allows:
vendor, models, extra.

  $ lay_blade && : >blade/VM20713302_3_target_mapping.out
  $ product() { sed -i "s/Marlovan_SX1/$1/" blade/VM20713302_2_target_mapping.out; }
  $ judged() {
  >     echo "Emulex|CNA-10102-FX|19A2|0714|1C3E|11C2|x|x|x|x|x|x|$1" >$conditions
  >     simulated $FX >out; status=$?; sed '1,/PCI function: 2/d; /--+/,$d; /^\t\t\t\t/d; /^$/d' out; return $status
  > }
  $ rows judged <<'EOF'
  > # The vendor counts whole, blank models allow all that it makes.
  > 'NRB| |x' => 0 \t\tAttached storage sub-system:
  > 'NR| |x|NRBX| |x|nrb| |x| |Marlovan|x' => 4
  > # A model allows what begins with it.
  > 'NRB|Marlovan_SX|x' => 0 ...\n\t\tCheck subsystem: 'Marlovan_SX' Attached subsystem: 'Marlovan_SX1'\t\t\t--> OK\n...
  > # One of the models will do; those before the last are told with one more tab.
  > 'NRB|A,Marlovan_SX1|x' => 0 ...\n\t\t\tCheck*'A' *!\n\t\tCheck*'Marlovan_SX1' *--> OK\n\tAlready*\n...
  > 'NRB|Marlovan_SX1,A|x' => 0 ...\n\t\t\tCheck subsystem: 'Marlovan_SX1' *--> OK\n\tAlready*\n...
  > # An empty model before a comma allows all, as the last one none.
  > 'NRB|A,,B|x' => 0 ...\n\t\t\tCheck*'A'*!\n\t\t\tCheck subsystem: ''*--> OK
  > 'NRB|A,|x' => 4 ...\n\t\t\tCheck*'A'*\t--> Invalid subsystem!\n\t\tCheck*''*\t--> Invalid subsystem!
  > # Each subsystem of the vendor is tried until a model allows the storage.
  > 'NRB|X|x|NRB|Marlovan_S|x|NRB|Marlovan|x' => 0 ...\n*'X'*!\n\t\tAtt*\n*'Marlovan_S'*--> OK\n...\n*group: Marlovan_S
  > # After one that allows all, the others are still looked at: the last model is not.
  > 'NRB| |x|NRB|Y,Z|x|NRB|Marlovan|x' => 0 \t\tAtt*\n\t\tAtt*\n*'Y'*!\n\t\tAtt*
  > 'NRB|,|x|NRB|A|x' => 0 \t\tAtt*\n\t\t\tCheck subsystem: ''*--> OK\n\t\tAtt*
  > # Model lists and products are judged whole, however long.
  > product Marlovan_SX1_first_edition :: 'NRB|X,Marlovan_SX1_first_ed|x' => 0 ...
  > 'NRB|X,Marlovan_SX1_first_issue|x' => 4 ...\n*'Marlovan_SX1_first_issue' *!
  > EOF
