  $ . "$TESTDIR/setup.sh"

The calls as the CLI sees them, in the order of its list; a simulated run tells the same
as a real one.

  $ lay_standin && real -v 6 $BOTH >real && cat cli/calls.log
  listhbas
  hbaattributes [10:00:00:00:c9:b2:00:11]
  hbaattributes [10:00:00:00:c9:b2:00:12]
  hbaattributes [10:00:00:00:c9:a1:00:11]
  hbaattributes [10:00:00:00:c9:a1:00:12]
  hbaattributes [10:00:00:00:c9:d4:00:01]
  hbaattributes [00:00:c9:c3:00:02]
  hbaattributes [00:00:c9:c3:00:01]
  hbaattributes [00:00:c9:a1:00:01]
  hbaattributes [00:00:c9:a1:00:02]
  hbaattributes [00:00:c9:b2:00:01]
  hbaattributes [00:00:c9:b2:00:02]
  targetmapping [10:00:00:00:c9:b2:00:11]
  targetmapping [10:00:00:00:c9:b2:00:12]
  targetmapping [10:00:00:00:c9:a1:00:11]
  targetmapping [10:00:00:00:c9:a1:00:12]
  targetmapping [10:00:00:00:c9:d4:00:01]
  $ ls blade | wc -l
  21
  $ lay_blade && simulated -v 6 $BOTH | sed 's,/usr/sbin/ocmanager/hbacmd,./hbacmd,' | diff - real

A list that can't be had ends the inventory, any other command that fails is only told.

  $ rows real lay_standin <<'EOF'
  > # A list that is printed counts for nothing when its command fails.
  > on listhbas1 'cat cli/reports/local_hba_list.out; exit 3' :: -v 4 => 13 ...
  > | \nFail, "hbacmd listhbas" command returned code 768.
  > | \nNo Blade*\n
  > on hbaattributes1 'exit 3' :: -v 6 $BOTH => 0 ...
  > | \n\t\tFail, "hbacmd hbaattributes 10:00:00:00:c9:b2:00:11" command returned code 768.\n...
  > on targetmapping3 'exit 1' :: -v 6 $BOTH => 0 ...
  > |
  > | \n\t\t\tFail, "hbacmd targetmapping 10:00:00:00:c9:a1:00:11" command returned code 256.\n...
  > rm hbacmd :: -v 1 => 13 \t\tCommand ./hbacmd is not available!\n\n\nNo Blade*\n
  > rm hbacmd :: --simulate --silent => 13
  > EOF

Reports that can't be opened end the inventory; the ports stay, without storage.

  $ rows simulated lay_blade <<'EOF'
  > rm blade/VM10250117_2_hba* :: $BOTH => 0 Error: Could not open file blade//VM10250117_2_hba_attributes.out\n...
  > rm blade/VM20713302_3_t* :: $BOTH => 0 Error: Could not open file blade//VM20713302_3_target_mapping.out\n...
  > rm blade/local_hba_list.out :: -v 1 => 13 Error: Could not open file blade//local_hba_list.out\n\nNo Blade*\n
  > EOF

The lines of the list as they are read. A value begins two characters after the colon;
blanks, tabs and quotes around it do not count.

  $ listed() {
  >     printf "$1" >blade/local_hba_list.out
  >     simulated -v 6 >out; status=$?; sed '1,/^Succ/d; /ocmanager/,$d' out; return $status
  > }
  $ lay_blade && rows listed <<'EOF'
  > # What comes before the first port belongs to none; a port may begin without a value.
  > 'Serial No.: nobody\nPort WWN\nNode WWN\nMode: a Mode\n' => 22 \ta Mode\n
  > 'Permanent MAC: "10:22:33:44:55:66:77"\nFlags:\nHost Name:\t x \nMfg:Emulex\nModel:M\n' => 22
  > | \n1)\tPermanentMAC: 10:22:33:44:55:66:77\n\t\n\tx\n\tmulex\n\t\n
  > # A line belongs to the first label that it begins with.
  > 'Port WWN: w\nModeling: a Model\nPort WWN: w\n' => 22 \n1)\tPortWWN: w\n\ta Model\n\n2)\tPortWWN: w\n
  > # A line of more than 1,023 characters is read in pieces.
  > 'Port WWN: w\nFlags: %01015dMode: a Mode\n' => 22 \n1)\tPortWWN: w\n\t0*M\n
  > 'Port WWN: w\nFlags: %01016dMode: a Mode\n' => 22 \n1)\tPortWWN: w\n\t0*0\n\ta Mode\n
  > EOF

The lines of attributes and target mappings, likewise, of FM's first port.

  $ after() { sed "1,/Succ.*$1.*a1:00:11/d; /ocmanager/,\$d" out; }
  $ attributes() {
  >     lay_blade && printf "$1" >blade/VM10250117_2_hba_attributes.out
  >     simulated -v 6 $FM >out; status=$?; after hbaattributes; return $status
  > }
  $ mapping() {
  >     lay_blade && printf "$1" >blade/VM10250117_2_target_mapping.out
  >     simulated -v 6 $FM >out; status=$?; after targetmapping; return $status
  > }
  $ rows attributes <<'EOF'
  > # What comes before the title is not read, another title begins anew, and a line
  > # without a colon tells what there is.
  > 'Model: M\nHBA Attributes for x\nDevice ID: 0714\nHBA Attributes for x\nModel: M\nModel Desc: D\nDevice ID\n' => 0
  > | \n\t\tHBA Attributes for 10:00:00:00:c9:a1:00:11\n\n\t\t0714
  > | \n\t\tHBA Attributes for 10:00:00:00:c9:a1:00:11\n\n\t\tM\n\t\t\n
  > # A number is read from the whole value, of which four characters are kept.
  > 'HBA Attributes for\nVendor Spec ID: 00019A2\nDevice ID: 714\nSub Device ID: "11C1"\nSub Vendor ID: 1c3e\n' => 0
  > | \n\t\tHBA Attributes for *\n\n\t\t0001\n\t\t714\n\t\t11C1\n\t\t1c3e\n
  > 'HBA Attributes for\nDevice ID: 10000000000000000\n' => 1 strtoul*\n\n*HBA Attributes for*\n
  > EOF
  $ rows mapping <<'EOF'
  > # The title has four lines; storage begins with the next line that has a colon.
  > 'Vendor ID: 1\n2\n3\nVendor ID: 4\nType Disk\nVendor ID: NRB\n' => 4 \t\t\tNRB\n
  > # A line without a colon tells what there is; with several LUNs the last one counts.
  > '\n\n\n\nSCSI: x\nType\nSCSI OS Lun: 123456\nVendor ID: NRB\nVendor ID: DGC\nVendor ID\n' => 4
  > | \t\t\t\n\t\t\t1234\n\t\t\tNRB\n\t\t\tDGC\n\t\t\tDGC\n
  > EOF

A type that begins with "FC" is called by its MAC, and told by its world-wide name.

  $ printf 'Port WWN: w\nSerial No: n/a\nPort Type: FCxx\n' >blade/local_hba_list.out
  $ simulated -v 6 | sed -n 's/^\t\t\(.*attributes.*\)/\1/p'
  /usr/sbin/ocmanager/hbacmd hbaattributes  > blade//n/a__hba_attributes.out
  Success, "hbacmd hbaattributes w" command returned code 0.
