  $ . "$TESTDIR/setup.sh"

A passing check of one port, whole, at the level that shows everything; a tab is
shown as ">", a divider by one of its groups.

  $ leave_one_record() { sed -i '/0714.*11C1/!d' $conditions; }
  $ leave_one_port_and_call_it_function_0() {
  >     sed -i '/c9:a1:00:11/,$!d; /c9:a1:00:12/,$d; s/\(Function *:\) 2/\1 0/' blade/local_hba_list.out
  >     for report in hba_attributes target_mapping; do mv blade/VM10250117_2_$report.out blade/VM10250117_0_$report.out; done
  > }
  $ leave_out_what_reads_alike() {
  >     sed -i '/Node\|Fab\|Host\|Mode \|Bus/d' blade/local_hba_list.out
  >     sed -i '/Vers\|HW\|Oper\|Type\|IPL\|Serial/d' blade/VM10250117_0_hba_attributes.out
  >     sed -i '/^FCP LUN.*1$/,$d; /SCSI [OC]\|Block/d' blade/VM10250117_0_target_mapping.out
  > }
  $ shorten() { sed -E 's/([-*]{9}\+){8}/\1/; s/\*{80}/**/' | tr '\t' '>' | cut -c 1-96; }
  $ lay_blade && leave_one_record && leave_one_port_and_call_it_function_0 && leave_out_what_reads_alike
  $ simulated -v 6 $FM | shorten
  
  List of input pci-ids: "19A2:0714:1C3E:11C1"
  
  >Vendor-Id 0x19a2
  >Device-Id 0x714
  >SubVendor-Id 0x1c3e
  >SubDevice-Id 0x11c1
  env: Environment variable TMPDIR is not set.
  HBA conditions file: blade/FC_HBA_Conditions.txt
               Emulex |      CNA-10102-F |   19A2 |   0714 |   1C3E |   11C1 |         FCoE |     
  
  *********+
  
  List of allowed Fibre-Channel-Controller and Online-Storage-System combinations:
  
  Emulex     CNA-10102-F     
  >>1) DGC        Marlovan_CX,CX4-
  >>2) NRB        Marlovan_SX1    
  
  
  *********+
  /usr/sbin/ocmanager/hbacmd listhbas > blade//local_hba_list.out 
  
  Success, "hbacmd listhbas" command returned code 0.
  
  1)>PortWWN: 10:00:00:00:c9:a1:00:11
  >8000e20b
  >Emulex Corporation
  >VM10250117
  >0
  >0
  >FCoE
  >CNA-10102-FM
  
  >>/usr/sbin/ocmanager/hbacmd hbaattributes 10:00:00:00:c9:a1:00:11 > blade//VM10250117_0_hba_att
  
  >>Success, "hbacmd hbaattributes 10:00:00:00:c9:a1:00:11" command returned code 0.
  
  >>HBA Attributes for 10:00:00:00:c9:a1:00:11
  
  >>CNA-10102-FM
  >>19A2
  >>0714
  >>11C1
  >>1C3E
  
  >>>/usr/sbin/ocmanager/hbacmd targetmapping 10:00:00:00:c9:a1:00:11 > blade//VM10250117_0_target
  
  >>>Success, "hbacmd targetmapping 10:00:00:00:c9:a1:00:11" command returned code 0.
  
  >>>Target Mapping for 10:00:00:00:c9:a1:00:11
  >>>0000000000000000
  >>>/dev/sdb
  >>>DGC
  >>>Marlovan_CX1
  >>>0430
  >>>Disk
  
  
  Original input list.
  
  0>CNA-10102-FM FCoE VM10250117 0 0
  
  
  List of CNA controller.
  
  0>CNA-10102-FM FCoE VM10250117 0 0
  
  Only FC ports detected.
  
  
  Total Result after PCI function sort.
  
  0>CNA-10102-FM FCoE VM10250117 0 0
  
  ** 
  
  List of Fibre-Channel-Controller and attached Online-Storage-Systems:
  
    Emulex Corporation>CNA-10102-FM>FCoE>VM10250117  port 0  function 0
  
  >DGC
  >Marlovan_CX1
  >0430
  
  
  **
  
  InvalidCtrlSubsystemCombinationFound: 0 
  MatchingCtrlModelInstalled: 0 
  CtrlVendorSpecificSubsystemEquality: 1 
  CtrlSpecificSubsystemEquality: 1 
  
  
  *********+
  *********+
  >FC_HBA_Conditions.txt:
  >Found a matching controller-device in line 1:
  >>vendor-id: 19A2, device-id: 0714
  >>subvendor-id: 1C3E, subdevice-id: 11C1
  >>Correspondig data: vendor: Emulex; model: CNA-10102-F
  
  
  >>---------+
  
  >>Perform subsystem check for:
  >>Vendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNu
  
  >>Attached storage sub-system:
  >>>>DGC
  >>>>Marlovan_CX1
  >>>>0430
  >>>Check subsystem: 'Marlovan_CX' Attached subsystem: 'Marlovan_CX1'>>>--> OK
  >Already identified reference subsystems: Marlovan_CX  Subsystem group: Marlovan_CX,CX4-
  >Reference subsystem Marlovan_CX found in Group: Marlovan_CX,CX4-
  >>>All reference subsystems appear in the same group: Marlovan_CX,CX4-
  
  >>Take this sub-system as reference-sub-system for this controller-device.
  >>>Vendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortN
  
  >>Take this sub-system as reference-sub-system for vendor Emulex Corporation.
  >>>Vendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortN
  ---------+
  
  *********+
  *********+
  
  OverallSubSystemCheck returned: 1 
  InvalidCtrlSubsystemCombinationFound: 0 
  MatchingCtrlModelInstalled: 1 
  CtrlVendorSpecificSubsystemEquality: 1 
  CtrlSpecificSubsystemEquality: 1 

The lines of the whole example at each level, 0 to 6, and of the debug run's log: a message
or a gate that has moved is seen here.

  $ lines_by_level() {
  >     for level in 0 1 2 3 4 5 6; do simulated -v "$level" "$@" 2>&1 | wc -l; done | xargs printf '%s '
  >     simulated -d 6 "$@"; wc -l <blade/Merlie_DLL.log
  > }
  $ lay_blade && lines_by_level --ctrl-wide-identical --ctrl-vendor-wide-identical $BOTH
  0 64 82 95 219 224 824 795
  $ lines_by_level $FLASH_BOTH
  0 54 54 60 112 117 693 664
  $ without_serial() { sed -i '/^Serial/s/VM1.*/n\/a/' blade/local_hba_list.out; }
  $ without_serial && lines_by_level $BOTH
  0 38 46 59 139 144 624 595
