  $ . "$TESTDIR/setup.sh"
  $ lay_standin

The CLI's commands with their traces, and the calls as the CLI saw them.

  $ real -v 6 -pci-id 19A2:0714 | sed -n '/hbacmd listhbas/,/Original/p' >trace; wc -l <trace
  488
  $ head -n 17 trace; sed -n '/hbaattributes/,/targetmapping/p' trace | head -n 25
  ./hbacmd listhbas > blade//local_hba_list.out 
  
  Success, "hbacmd listhbas" command returned code 0.
  
  1)\tPortWWN: 10:00:00:00:c9:b2:00:11 (esc)
  \tNodeWWN: 20:00:00:00:c9:b2:00:11 (esc)
  \tFabric_Name: 10:00:00:05:33:7e:01:00 (esc)
  \t8000e20b (esc)
  \tblade07 (esc)
  \tEmulex Corporation (esc)
  \tVM20713302 (esc)
  \t0 (esc)
  \tInitiator (esc)
  \t15 (esc)
  \t2 (esc)
  \tFCoE (esc)
  \tCNA-10102-FX (esc)
  \t\t./hbacmd hbaattributes 10:00:00:00:c9:b2:00:11 > blade//VM20713302_2_hba_attributes.out (esc)
  
  \t\tSuccess, "hbacmd hbaattributes 10:00:00:00:c9:b2:00:11" command returned code 0. (esc)
  
  \t\tHBA Attributes for 10:00:00:00:c9:b2:00:11 (esc)
  
  \t\tVM20713302 (esc)
  \t\tCNA-10102-FX (esc)
  \t\t2 (esc)
  \t\t4.6.142.10 (esc)
  \t\t19A2 (esc)
  \t\t0714 (esc)
  \t\tCNA-10102-FX (esc)
  \t\t4.6.142.10 (esc)
  \t\t8.3.5.68.5p; HB (esc)
  \t\tFCoE (esc)
  \t\t11C2 (esc)
  \t\t1C3E (esc)
  \t\tnone (esc)
  
  \t\t./hbacmd hbaattributes 10:00:00:00:c9:b2:00:12 > blade//VM20713302_3_hba_attributes.out (esc)
  
  \t\tSuccess, "hbacmd hbaattributes 10:00:00:00:c9:b2:00:12" command returned code 0. (esc)
  
  \t\tHBA Attributes for 10:00:00:00:c9:b2:00:12 (esc)
  $ sed -n '/targetmapping/,$p' trace | head -n 30
  \t\t\t./hbacmd targetmapping 10:00:00:00:c9:b2:00:11 > blade//VM20713302_2_target_mapping.out (esc)
  
  \t\t\tSuccess, "hbacmd targetmapping 10:00:00:00:c9:b2:00:11" command returned code 0. (esc)
  
  \t\t\tTarget Mapping for 10:00:00:00:c9:b2:00:11 (esc)
  \t\t\t0000000000000000 (esc)
  \t\t\t0 (esc)
  \t\t\t/dev/sdb (esc)
  \t\t\tNRB (esc)
  \t\t\tMarlovan_SX1 (esc)
  \t\t\t7.12 (esc)
  \t\t\tDisk (esc)
  \t\t\t102400 MB (esc)
  \t\t\t512 Bytes (esc)
  \t\t\t0000000000000001 (esc)
  \t\t\t1 (esc)
  \t\t\t/dev/sdc (esc)
  \t\t\tNRB (esc)
  \t\t\tMarlovan_SX1 (esc)
  \t\t\t7.12 (esc)
  \t\t\tDisk (esc)
  \t\t\t102400 MB (esc)
  \t\t\t512 Bytes (esc)
  
  \t\t\t./hbacmd targetmapping 10:00:00:00:c9:b2:00:12 > blade//VM20713302_3_target_mapping.out (esc)
  
  \t\t\tSuccess, "hbacmd targetmapping 10:00:00:00:c9:b2:00:12" command returned code 0. (esc)
  
  \t\t\tTarget Mapping for 10:00:00:00:c9:b2:00:12 (esc)
  \t\t\t0000000000000000 (esc)
  $ cat cli/calls.log
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

Commands that fail: the list ends the inventory, any other is only told of.

  $ lay_standin && echo 'exit 3' >cli/call1 && real -v 4; cat cli/calls.log
  env: Environment variable TMPDIR is not set.
  HBA conditions file: blade/FC_HBA_Conditions.txt
  
  *********+*********+*********+*********+*********+*********+*********+*********+
  
  List of allowed Fibre-Channel-Controller and Online-Storage-System combinations:
  
  Emulex     CNA-10102-F     
  \t\t1) DGC        Marlovan_CX,CX4- (esc)
  \t\t2) NRB        Marlovan_SX1     (esc)
  
  Emulex     CNA-10102-F     
  \t\t1) DGC        Marlovan_CX      (esc)
  
  Emulex     CNA-10102-F     
  
  Emulex     CNA-10102-F     
  
  Emulex     CNA-10102-I     
  \t\t1) DGC                         (esc)
  
  
  *********+*********+*********+*********+*********+*********+*********+*********+
  
  Fail, "hbacmd listhbas" command returned code 768.
  
  No Blade Engine was found in this system.
  
  listhbas
  $ lay_standin && echo 'exit 3' >cli/call2 && echo 'exit 0' >cli/call14 && echo 'exit 1' >cli/call15
  $ real -v 6 -pci-id 19A2:0714 | grep -B1 Fail
  
  \t\tFail, "hbacmd hbaattributes 10:00:00:00:c9:b2:00:11" command returned code 768. (esc)
  --
  
  \t\t\tFail, "hbacmd targetmapping 10:00:00:00:c9:a1:00:11" command returned code 256. (esc)
  $ wc -l <cli/calls.log
  17

A report that can't be opened ends the inventory; the ports stay.

  $ lay_blade && rm blade/VM10250117_2_hba_attributes.out && simulated -v 1 -pci-id 19A2:0714
  Error: Could not open file blade//VM10250117_2_hba_attributes.out
  
  \t\t---------+---------+---------+---------+---------+---------+---------+---------+ (esc)
  
  \t\tPerform subsystem check for: (esc)
  \t\tVendor: Emulex Corporation, Model: CNA-10102-FX SerialNumber: VM20713302 PortType: FCoE PortNumber: 0 PCI function: 2 (esc)
  
  
  \t\t---------+---------+---------+---------+---------+---------+---------+---------+ (esc)
  
  \t\tPerform subsystem check for: (esc)
  \t\tVendor: Emulex Corporation, Model: CNA-10102-FX SerialNumber: VM20713302 PortType: FCoE PortNumber: 1 PCI function: 3 (esc)
  
  $ lay_blade && rm blade/VM20713302_3_target_mapping.out && simulated -v 1 -pci-id 19A2:0714 | only Error
  Error: Could not open file blade//VM20713302_3_target_mapping.out
  $ lay_blade && rm blade/local_hba_list.out && simulated
  Error: Could not open file blade//local_hba_list.out
  
  No Blade Engine was found in this system.
  
  [13]
  $ mkfifo blade/local_hba_list.out && simulated -v 0
  [13]

No CLI, and none needed.

  $ rm hbacmd && real
  \t\tCommand ./hbacmd is not available! (esc)
  
  
  No Blade Engine was found in this system.
  
  [13]
  $ lay_blade && simulated -v 0 -pci-id 19A2:0714

Lines of a report: label tests, cut values, missing colons, lines before the
first port, empty values, an over-long line.

  $ cat >blade/local_hba_list.out <<'EOF'
  > Serial No.: nobody
  > Port WWN
  > Node WWN without a colon
  > Modeling: it is a Model line
  > Mode: it is a Mode line
  > Permanent MAC: "10:22:33:44:55:66:77"
  > Serial Number: n/a-too
  > Flags:
  > Host Name:	 x 
  > Mfg:Emulex
  > EOF
  $ printf 'Port Number: %01012d\nxPort Type: FC\nModel:M' 0 | sed 's/x$//' >>blade/local_hba_list.out
  $ simulated -v 6 | sed -n '/Success.*listhbas/,/hbaattributes/p' | cut -c 1-70
  Success, "hbacmd listhbas" command returned code 0.
  \tit is a Model line (esc)
  \tit is a Mode line (esc)
  
  2)\tPermanentMAC: 10:22:33:44:55:66:77 (esc)
  \t (esc)
  \tx (esc)
  \tmulex (esc)
  \t000000000000000000000000000000000000000000000000000000000000000000000 (esc)
  \t (esc)
  
  \t\t/usr/sbin/ocmanager/hbacmd hbaattributes  > blade//__hba_attributes. (esc)
  $ simulated -v 6 | sed -n '/Original/,/ports detected/p'
  Original input list.
  
  0\tit is a Model line     (esc)
  1\t    00000 (esc)
  
  
  List of CNA controller.
  
  0\tit is a Model line     (esc)
  1\t    00000 (esc)
  
  
  Total Result after PCI function sort.
  
  0\tit is a Model line     (esc)
  1\t    00000 (esc)

Attributes: a second header starts a second record, numbers are read from the
whole value, a field line without a colon is traced with the field as it is.

  $ lay_blade && cat >blade/VM10250117_2_hba_attributes.out <<'EOF'
  > Vendor Spec ID: FFFF
  > HBA Attributes for nobody
  > Vendor Spec ID: 19A2
  > HBA Attributes for nobody
  > Vendor Spec ID: 00019A2
  > Device ID: 714
  > Device ID without a colon
  > Model: M
  > Model Desc: D
  > Sub Device ID: "11C1"
  > Sub Vendor ID: 1C3E
  > EOF
  $ simulated -v 6 -pci-id 19A2:0714 | sed -n '/attributes 10:00:00:00:c9:a1:00:11" /,/hbacmd hba/p'
  \t\tSuccess, "hbacmd hbaattributes 10:00:00:00:c9:a1:00:11" command returned code 0. (esc)
  
  \t\tHBA Attributes for 10:00:00:00:c9:a1:00:11 (esc)
  
  \t\t19A2 (esc)
  
  \t\tHBA Attributes for 10:00:00:00:c9:a1:00:11 (esc)
  
  \t\t0001 (esc)
  \t\t714 (esc)
  \t\t714 (esc)
  \t\tM (esc)
  \t\t11C1 (esc)
  \t\t1C3E (esc)
  
  \t\t/usr/sbin/ocmanager/hbacmd hbaattributes 10:00:00:00:c9:a1:00:12 > blade//VM10250117_3_hba_attributes.out (esc)
  $ simulated --silent -pci-id 19A2:0714:1C3E:11C1
  $ echo 'Device ID: 10000000000000000' >>blade/VM10250117_2_hba_attributes.out; simulated
  strtoul: Numerical result out of range
  [1]

Target mapping: the heading never counts, the last value wins.

  $ lay_blade && cat >blade/VM20713302_2_target_mapping.out <<'EOF'
  > Vendor ID: one
  > Vendor ID: two
  > Vendor ID: three
  > Vendor ID: four
  > Type Disk
  > SCSI: starts the record
  > Type Disk
  > SCSI OS Lun: 123456
  > Vendor ID: DGC
  > Product ID: CX
  > Vendor ID: NRB
  > Vendor ID
  > EOF
  $ simulated -v 6 -pci-id 19A2:0714 | sed -n '/targetmapping/,$p' | head -n 14
  \t\t\t/usr/sbin/ocmanager/hbacmd targetmapping 10:00:00:00:c9:b2:00:11 > blade//VM20713302_2_target_mapping.out (esc)
  
  \t\t\tSuccess, "hbacmd targetmapping 10:00:00:00:c9:b2:00:11" command returned code 0. (esc)
  \t\t\t (esc)
  \t\t\t1234 (esc)
  \t\t\tDGC (esc)
  \t\t\tCX (esc)
  \t\t\tNRB (esc)
  \t\t\tNRB (esc)
  
  \t\t\t/usr/sbin/ocmanager/hbacmd targetmapping 10:00:00:00:c9:b2:00:12 > blade//VM20713302_3_target_mapping.out (esc)
  
  \t\t\tSuccess, "hbacmd targetmapping 10:00:00:00:c9:b2:00:12" command returned code 0. (esc)
  
