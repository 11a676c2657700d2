  $ . "$TESTDIR/setup.sh"

The statuses of the checks and of the selection. Only the first active check
decides whether a flash follows, the vendor-wide one comes first in the status.

  $ both='--ctrl-wide-identical --ctrl-vendor-wide-identical' all='-pci-id 19A2:0714' fm=-pci-id\ 19A2:0714:1C3E:11C1 fx=-pci-id\ 19A2:0714:1C3E:11C2
  $ differ() { sed -i 's/: DGC/: NRB/; s/_CX1/_SX1/' blade/VM10250117_3_target_mapping.out; }
  $ maps() { printf "$1" >blade/VM10250117_2_target_mapping.out; }
  $ rows simulated lay_blade <<'EOF'
  > -v 2 --ctrl-vendor-wide-identical $all => 2 *\nvendor specific reference-sub-system 1 >NRB< >DGC<.\n\t\tAt least one sub-system differs from vendor specific reference-sub-system (different vendors).\n\n*system 0 >NRB<*
  > --silent $both $all => 2
  > --silent x--ctrl-wide-identical $all => 0
  > --flash $both $all => 2 *Now start flashing*
  > --flash --ctrl-vendor-wide-identical -v 3 $all => 2 *OverallSubSystemCheck returned: 0 \n
  > --flash --check-for-valid-subsystem -v 3 $fx => 4 *OverallSubSystemCheck returned: 0 \n
  > differ :: -v 2 --ctrl-wide-identical $fm => 1 *\t\tThis sub-system differs from controller specific reference-sub-system.\n\t\t\tVendor:*\n\n*\t\tAt least one*
  > differ :: --silent $both $fm => 2
  > differ :: --silent $fm => 0
  > differ :: --flash --check-for-valid-subsystem --ctrl-wide-identical $fm => 1 *Now start flashing*
  > differ :: --flash --ctrl-wide-identical --silent $fm => 1
  > --silent -vid 19A2 -dev 0714 -subvid 1C3E -subdev 11C3 => 12
  > --silent -pci-id 19A2:0714:1:11C1 => 12
  > --silent -pci-id 0:0 => 12
  > -d 6 => 12
  > --silent --qmr-modex => 0
  > -v 3 -vn Emulex => 12 *\n\n*\n*+\n\n*+\n*+\n\nOverallSubSystemCheck returned: 1 \n
  > --silent --ctrl-vendor-wide-identical --qmr-mode $all => 2
  > EOF

What ends the walk over an adapter's ports.

  $ rows simulated lay_blade <<'EOF'
  > sed -i 's/: DGC/: dgc/' blade/VM10250117_2* :: -v 2 --ctrl-wide-identical $fm => 4 *function: 2\n\t\tTake this*function: 2\n\n\n\t\t---*function: 3\n\n\t\tAtt*for vendor Emulex Corporation.\n*function: 3\n
  > maps '\n\n\nVendor ID: DGC\nno target' :: -v 4 --ctrl-wide-identical $fm => 0 *  function 2\n\n  Em*function: 2\n\n\n\t\t---*function: 3\n\n\t\tAtt*
  > maps '\n\n\n\nVendor ID: D' :: -v 4 $fm => 4 *  function 2\n\n\tD\n\t\n\t\n\n  Em*function: 2\n\t\tTake*
  > maps '\n\n\n\nType: x' :: -v 4 $fm => 4 *  function 2\n\n  Em*function: 2\n\t\tTake*
  > sed -i 's/^Mfg.*/Mfg: emulex/' blade/local* :: -v 2 $fm => 0
  > sed -i 's/10102-F /10102-FMX /' blade/FC* :: -v 2 $fm => 0
  > -v 6 -pci-id 19A2:0712:1C3E:11D0 => 0 *\tFound a matching controller-device in line 5:\n\t\tvendor-id: 19A2, device-id: 0712\n\t\tsubvendor-id: 1C3E, subdevice-id: 11D0\n*model: CNA-10102-I\n\n---*
  > echo "ERROR: no adapter" >blade/local_hba_list.out :: -v 1 => 13 \nNo Blade Engine was found in this system.\n\n
  > echo "ERROR: no adapter" >blade/local_hba_list.out :: --qmr-mode => 0 \nNo Bl*
  > sed -i 's/^\(Port Number *\): ./\1: 3/' blade/local* :: $fm => 22
  > sed -i '/^Serial/s/VM.*/n.a/;/^Port Number/s/:.*/:3/' blade/local* :: -v 1 => 22 Error*n.a_2_hba*
  > sed -i '/^Serial/s/VM2.*/n\/a/' blade/local* :: -v 1 $all => 0 \t\tNo serial number => SKIP!\n*SKIP!\n*SKIP!\n*SKIP!\n\t\t\tNo serial number => SKIP!\n*
  > sed -i '/^Serial/s/VM2.*/n\/ab/' blade/local* :: -v 6 $all => 0 *\tVendor: Emulex Corporation Model: CNA-10102-FX; SN: n/ab port: 0 function: 0\n\tNo serial number => SKIP\n---*+\n\tVendor*
  > EOF

The storage of one port against a record with the subsystems given.

  $ lay_blade && : >blade/VM20713302_3_target_mapping.out
  $ judged() {
  >     echo "Emulex|CNA-10102-FX|19A2|0714|1C3E|11C2|x|x|x|x|x|x|$1" >blade/FC_HBA_Conditions.txt
  >     status=0; simulated $fx >out || status=$?
  >     sed '1,/function: 2/d; /---+/,$d' out; return $status
  > }
  $ rows judged <<'EOF'
  > 'NRB| |x' => 0 \n\t\tAttached storage sub-system:\n\t\t\t\tNRB\n\t\t\t\tMarlovan_SX1\n\t\t\t\t7.12\n\n\n*
  > 'NRB|Marlovan_SX|x' => 0 *12\n\t\tCheck subsystem: 'Marlovan_SX' Att*--> OK\n\tAl*\n\tRef*\n\t\t\tAll*: Marlovan_SX\n\n*
  > 'NRB|Marlovan_SX10|x' => 4 *12\n\t\tCheck*_SX10' Attached*_SX1'\t\t\t--> Invalid subsystem!\n\n\n
  > 'nrb|Marlovan_SX1|x' => 4 \n\n
  > 'NRB|A,Marlovan_SX1|x' => 0 *\t\t\tCheck*'A'*!\n\t\tCheck*--> OK\n\tAl*_SX1  Sub*found in Group: A,Marlovan_SX1\n*
  > 'NRB|Marlovan_SX1,A|x' => 0 *12\n\t\t\tCheck*'Marlovan_SX1'*--> OK\n\tAl*Group: Marlovan_SX1,A\n*
  > 'NRB|A,,B|x' => 0 *12\n\t\t\tCheck*'A'*!\n\t\t\tCheck subsystem: ''*--> OK\n\n*
  > 'NRB|A,B,|x' => 4 *12\n\t\t\tCheck*'A'*!\n\t\t\tCheck*'B'*!\n\t\tCheck subsystem: ''*!\n\n\n
  > 'NRB|X|x|NRB|Marlovan_S|x' => 0 *'X'*!\n\n\t\tAtt*'Marlovan_S'*OK\n*same group: Marlovan_S\n*
  > 'NRB| |x|NRB|Y,Z|x|NRB|Marlovan|x' => 0 *12\n\n\t\tAtt*'Y'*!\n\n\t\tAtt*12\n\n*
  > 'NRB|,|x|NRB|A|x' => 0 *12\n\t\t\tCheck subsystem: ''*--> OK\n\n\t\tAtt*12\n\n*
  > '|Marlovan|x|DGC| |x' => 4 \n\n
  > EOF
