  $ . "$TESTDIR/setup.sh"
  $ fm=-pci-id\ 19A2:0714:1C3E:11C1 conditions=blade/FC_HBA_Conditions.txt

The calls as the CLI sees them. A list that can't be had ends the inventory, any
other command that fails is only told of.

  $ lay_standin && real -v 6 -pci-id 19A2:0714 >real && cksum <cli/calls.log && ls blade | wc -l
  1687552650 613
  21
  $ lay_blade && simulated -v 6 -pci-id 19A2:0714 | sed 's,/usr/sbin/ocmanager,.,' | diff - real
  $ rows real lay_standin <<'EOF'
  > echo 'exit 3' >cli/call1 :: -v 4 => 13 *\n\nFail, "hbacmd listhbas" command returned code 768.\n\nNo Blade*
  > echo 'exit 3' >cli/call1 :: -v 3 => 13 env*.txt\n\nNo Blade*
  > echo 'exit 3' >cli/call2 :: -v 6 -pci-id 19A2:0714 => 0 *\n\t\tFail, "hbacmd hbaattributes 10:00:00:00:c9:b2:00:11" command returned code 768.\n*
  > echo 'exit 1' >cli/call15 :: -v 6 -pci-id 19A2:0714 => 0 *\n\n\n\t\t\tFail, "hbacmd targetmapping 10:00:00:00:c9:a1:00:11" command returned code 256.\n*
  > for n in 2 15; do echo 'exit 1' >cli/call$n; done :: -v 1 -pci-id 19A2:0714 => 0 \n\t\t----*
  > rm hbacmd :: -v 1 => 13 \t\tCommand ./hbacmd is not available!\n\n\nNo Blade*
  > rm hbacmd :: --simulate --silent => 13
  > EOF

Reports that can't be opened end the inventory; the ports stay.

  $ rows simulated lay_blade <<'EOF'
  > rm blade/VM10250117_2_hba* :: -pci-id 19A2:0714 => 0 Error: Could not open file blade//VM10250117_2_hba_attributes.out\n\n\t\t---*\n\n\n\t\t---*\n\n
  > rm blade/VM20713302_3_t* :: -pci-id 19A2:0714 => 0 Error: Could not open file blade//VM20713302_3_t*
  > rm blade/local_hba_list.out :: -v 1 => 13 Error: Could not open file blade//local_hba_list.out\n\nNo*
  > rm $conditions :: -v 1 => 15 Error: Could not open file blade/FC_HBA_Conditions.txt\n\nCann't access file blade/FC_HBA_Conditions.txt.\n\n
  > EOF

Lines of the reports: labels, cut values, missing colons and heads, an over-long
line. A number is read from the whole value.

  $ list() { printf "$1" >blade/local_hba_list.out; }
  $ attributes() { printf "$1" >blade/VM10250117_2_hba_attributes.out; }
  $ maps() { printf "$1" >blade/VM10250117_2_target_mapping.out; }
  $ rows simulated lay_blade <<'EOF'
  > list 'Serial No.: nobody\nPort WWN\nNode WWN\nModeling: a Model\nMode: a Mode\nPermanent MAC: "10:22:33:44:55:66:77"\nSerial No: n/a-too\nFlags:\nHost Name:\t x \nMfg:Emulex\nPort Number: %01012d\nPort Type: FCxx\nModel:M' :: -v 6 => 22 *returned code 0.\n\ta Model\n\ta Mode\n\n2)\tPermanentMAC: 10:22:33:44:55:66:77\n\tn/a-too\n\t\n\tx\n\tmulex\n\t00*00\n\tFCxx\n\t\n\n*hbaattributes  > blade//__hba_*
  > list 'Port WWN: w\nPermanent MAC: m\nSerial No: n/a\nPort Type: FCxx' :: -v 6 => 22 *"hbacmd hbaattributes " command*
  > attributes 'Vendor Spec ID: FFFF\nHBA Attributes for x\nVendor Spec ID: 19A2\nHBA Attributes for x\nVendor Spec ID: 00019A2\nDevice ID: 714\nDevice ID\nModel: M\nModel Desc: D\nSub Device ID: "11C1"\nSub Vendor ID: 1c3e' :: -v 6 $fm => 0 *c9:a1:00:11" command returned code 0.\n\n\t\tHBA Attributes for 10:00:00:00:c9:a1:00:11\n\n\t\t19A2\n\n\t\tHBA Attributes for 10:00:00:00:c9:a1:00:11\n\n\t\t0001\n\t\t714\n\t\t714\n\t\tM\n\t\t11C1\n\t\t1c3e\n\n\t\t/usr*
  > attributes 'HBA Attributes for\nDevice ID: 10000000000000000' :: -v 1 => 1 strtoul*
  > maps 'Vendor ID: 1\n2\n3\nVendor ID: 4\nType Disk\nSCSI: starts the record\nType Disk\nSCSI OS Lun: 123456\nVendor ID: NRB\nProduct ID: Marlovan_SX1\nVendor ID: DGC\nVendor ID' :: -v 6 $fm => 4 *c9:a1:00:11" command returned code 0.\n\t\t\t\n\t\t\t1234\n\t\t\tNRB\n\t\t\tMarlovan_SX1\n\t\t\tDGC\n\t\t\tDGC\n\n\t\t\t/usr*
  > EOF
