  $ . "$TESTDIR/setup.sh"
  $ lay_blade

A passing check, whole, at the level that shows everything.

  $ simulated -v 6 --ctrl-wide-identical -pci-id 19A2:0714:1C3E:11C1
  
  List of input pci-ids: "19A2:0714:1C3E:11C1"
  
  \tVendor-Id 0x19a2 (esc)
  \tDevice-Id 0x714 (esc)
  \tSubVendor-Id 0x1c3e (esc)
  \tSubDevice-Id 0x11c1 (esc)
  env: Environment variable TMPDIR is not set.
  HBA conditions file: blade/FC_HBA_Conditions.txt
               Emulex |      CNA-10102-F |   19A2 |   0714 |   1C3E |   11C1 |         FCoE |         PCIe |     fm10102- |              |   2012-11-05 |            x |          DGC |   Marlovan_CX,CX4- |            x          NRB |       Marlovan_SX1 |            x
               Emulex |      CNA-10102-F |   19A2 |   0714 |   1C3E |   11C2 |         FCoE |         PCIe |        *.ufi |        *.grp |   2012-11-05 |            x |          DGC |        Marlovan_CX |            x
               Emulex |      CNA-10102-F |   19A2 |   0700 |   1C3E |   11C1 |          NIC |         PCIe |     fm10102- |              |   2012-11-05 |            x |
               Emulex |      CNA-10102-F |   19A2 |   0700 |   1C3E |   11C2 |          NIC |         PCIe |        *.ufi |        *.grp |   2012-11-05 |            x |
               Emulex |      CNA-10102-I |   19A2 |   0712 |   1C3E |   11D0 |        iSCSI |         PCIe |     is10102- |              |   2012-11-05 |            x |          DGC |                    |            x
  
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
  /usr/sbin/ocmanager/hbacmd listhbas > blade//local_hba_list.out 
  
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
  
  2)\tPortWWN: 10:00:00:00:c9:b2:00:12 (esc)
  \tNodeWWN: 20:00:00:00:c9:b2:00:12 (esc)
  \tFabric_Name: 10:00:00:05:33:7e:01:00 (esc)
  \t8000e20b (esc)
  \tblade07 (esc)
  \tEmulex Corporation (esc)
  \tVM20713302 (esc)
  \t1 (esc)
  \tInitiator (esc)
  \t15 (esc)
  \t3 (esc)
  \tFCoE (esc)
  \tCNA-10102-FX (esc)
  
  3)\tPortWWN: 10:00:00:00:c9:a1:00:11 (esc)
  \tNodeWWN: 20:00:00:00:c9:a1:00:11 (esc)
  \tFabric_Name: 10:00:00:05:33:7e:01:00 (esc)
  \t8000e20b (esc)
  \tblade07 (esc)
  \tEmulex Corporation (esc)
  \tVM10250117 (esc)
  \t0 (esc)
  \tInitiator (esc)
  \t12 (esc)
  \t2 (esc)
  \tFCoE (esc)
  \tCNA-10102-FM (esc)
  
  4)\tPortWWN: 10:00:00:00:c9:a1:00:12 (esc)
  \tNodeWWN: 20:00:00:00:c9:a1:00:12 (esc)
  \tFabric_Name: 10:00:00:05:33:7e:01:00 (esc)
  \t8000e20b (esc)
  \tblade07 (esc)
  \tEmulex Corporation (esc)
  \tVM10250117 (esc)
  \t1 (esc)
  \tInitiator (esc)
  \t12 (esc)
  \t3 (esc)
  \tFCoE (esc)
  \tCNA-10102-FM (esc)
  
  5)\tPortWWN: 10:00:00:00:c9:d4:00:01 (esc)
  \tNodeWWN: 20:00:00:00:c9:d4:00:01 (esc)
  \tFabric_Name: 10:00:00:05:33:7e:01:00 (esc)
  \t8000e20b (esc)
  \tblade07 (esc)
  \tEmulex Corporation (esc)
  \tVM40019005 (esc)
  \t0 (esc)
  \tInitiator (esc)
  \t21 (esc)
  \t0 (esc)
  \tFC (esc)
  \tFCA-8001 (esc)
  
  6)\tPermanentMAC: 00:00:c9:c3:00:02 (esc)
  \tCurrentMAC: 00:00:c9:c3:00:02 (esc)
  \t0000000a (esc)
  \tblade07 (esc)
  \tEmulex Corporation (esc)
  \tVM30550041 (esc)
  \t1 (esc)
  \t18 (esc)
  \t1 (esc)
  \tiSCSI (esc)
  \tCNA-10102-I (esc)
  
  7)\tPermanentMAC: 00:00:c9:c3:00:01 (esc)
  \tCurrentMAC: 00:00:c9:c3:00:01 (esc)
  \t0000000a (esc)
  \tblade07 (esc)
  \tEmulex Corporation (esc)
  \tVM30550041 (esc)
  \t0 (esc)
  \t18 (esc)
  \t0 (esc)
  \tiSCSI (esc)
  \tCNA-10102-I (esc)
  
  8)\tPermanentMAC: 00:00:c9:a1:00:01 (esc)
  \tCurrentMAC: 00:00:c9:a1:00:01 (esc)
  \t0000000a (esc)
  \tblade07 (esc)
  \tEmulex Corporation (esc)
  \tVM10250117 (esc)
  \t0 (esc)
  \t12 (esc)
  \t0 (esc)
  \tNIC (esc)
  \tCNA-10102-FM (esc)
  
  9)\tPermanentMAC: 00:00:c9:a1:00:02 (esc)
  \tCurrentMAC: 00:00:c9:a1:00:02 (esc)
  \t0000000a (esc)
  \tblade07 (esc)
  \tEmulex Corporation (esc)
  \tVM10250117 (esc)
  \t1 (esc)
  \t12 (esc)
  \t1 (esc)
  \tNIC (esc)
  \tCNA-10102-FM (esc)
  
  10)\tPermanentMAC: 00:00:c9:b2:00:01 (esc)
  \tCurrentMAC: 00:00:c9:b2:00:01 (esc)
  \t0000000a (esc)
  \tblade07 (esc)
  \tEmulex Corporation (esc)
  \tVM20713302 (esc)
  \t0 (esc)
  \t15 (esc)
  \t0 (esc)
  \tNIC (esc)
  \tCNA-10102-FX (esc)
  
  11)\tPermanentMAC: 00:00:c9:b2:00:02 (esc)
  \tCurrentMAC: 00:00:c9:b2:00:02 (esc)
  \t0000000a (esc)
  \tblade07 (esc)
  \tEmulex Corporation (esc)
  \tVM20713302 (esc)
  \t1 (esc)
  \t15 (esc)
  \t1 (esc)
  \tNIC (esc)
  \tCNA-10102-FX (esc)
  
  \t\t/usr/sbin/ocmanager/hbacmd hbaattributes 10:00:00:00:c9:b2:00:11 > blade//VM20713302_2_hba_attributes.out (esc)
  
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
  
  \t\t/usr/sbin/ocmanager/hbacmd hbaattributes 10:00:00:00:c9:b2:00:12 > blade//VM20713302_3_hba_attributes.out (esc)
  
  \t\tSuccess, "hbacmd hbaattributes 10:00:00:00:c9:b2:00:12" command returned code 0. (esc)
  
  \t\tHBA Attributes for 10:00:00:00:c9:b2:00:12 (esc)
  
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
  
  \t\t/usr/sbin/ocmanager/hbacmd hbaattributes 10:00:00:00:c9:a1:00:11 > blade//VM10250117_2_hba_attributes.out (esc)
  
  \t\tSuccess, "hbacmd hbaattributes 10:00:00:00:c9:a1:00:11" command returned code 0. (esc)
  
  \t\tHBA Attributes for 10:00:00:00:c9:a1:00:11 (esc)
  
  \t\tVM10250117 (esc)
  \t\tCNA-10102-FM (esc)
  \t\t2 (esc)
  \t\t4.6.142.10 (esc)
  \t\t19A2 (esc)
  \t\t0714 (esc)
  \t\tCNA-10102-FM (esc)
  \t\t4.6.142.10 (esc)
  \t\t8.3.5.68.5p; HB (esc)
  \t\tFCoE (esc)
  \t\t11C1 (esc)
  \t\t1C3E (esc)
  \t\tnone (esc)
  
  \t\t/usr/sbin/ocmanager/hbacmd hbaattributes 10:00:00:00:c9:a1:00:12 > blade//VM10250117_3_hba_attributes.out (esc)
  
  \t\tSuccess, "hbacmd hbaattributes 10:00:00:00:c9:a1:00:12" command returned code 0. (esc)
  
  \t\tHBA Attributes for 10:00:00:00:c9:a1:00:12 (esc)
  
  \t\tVM10250117 (esc)
  \t\tCNA-10102-FM (esc)
  \t\t2 (esc)
  \t\t4.6.142.10 (esc)
  \t\t19A2 (esc)
  \t\t0714 (esc)
  \t\tCNA-10102-FM (esc)
  \t\t4.6.142.10 (esc)
  \t\t8.3.5.68.5p; HB (esc)
  \t\tFCoE (esc)
  \t\t11C1 (esc)
  \t\t1C3E (esc)
  \t\tnone (esc)
  
  \t\t/usr/sbin/ocmanager/hbacmd hbaattributes 10:00:00:00:c9:d4:00:01 > blade//VM40019005_0_hba_attributes.out (esc)
  
  \t\tSuccess, "hbacmd hbaattributes 10:00:00:00:c9:d4:00:01" command returned code 0. (esc)
  
  \t\tHBA Attributes for 10:00:00:00:c9:d4:00:01 (esc)
  
  \t\tVM40019005 (esc)
  \t\tFCA-8001 (esc)
  \t\t2 (esc)
  \t\t4.6.142.10 (esc)
  \t\t10DF (esc)
  \t\tF100 (esc)
  \t\tFCA-8001 (esc)
  \t\t4.6.142.10 (esc)
  \t\t8.3.5.68.5p; HB (esc)
  \t\tFC (esc)
  \t\tF100 (esc)
  \t\t10DF (esc)
  \t\tnone (esc)
  
  \t\t/usr/sbin/ocmanager/hbacmd hbaattributes 00:00:c9:c3:00:02 > blade//VM30550041_1_hba_attributes.out (esc)
  
  \t\tSuccess, "hbacmd hbaattributes 00:00:c9:c3:00:02" command returned code 0. (esc)
  
  \t\tHBA Attributes for 00:00:c9:c3:00:02 (esc)
  
  \t\tVM30550041 (esc)
  \t\tCNA-10102-I (esc)
  \t\t2 (esc)
  \t\t4.6.142.10 (esc)
  \t\t19A2 (esc)
  \t\t0712 (esc)
  \t\tCNA-10102-I (esc)
  \t\t4.6.142.10 (esc)
  \t\t8.3.5.68.5p; HB (esc)
  \t\tiSCSI (esc)
  \t\t11D0 (esc)
  \t\t1C3E (esc)
  \t\tnone (esc)
  
  \t\t/usr/sbin/ocmanager/hbacmd hbaattributes 00:00:c9:c3:00:01 > blade//VM30550041_0_hba_attributes.out (esc)
  
  \t\tSuccess, "hbacmd hbaattributes 00:00:c9:c3:00:01" command returned code 0. (esc)
  
  \t\tHBA Attributes for 00:00:c9:c3:00:01 (esc)
  
  \t\tVM30550041 (esc)
  \t\tCNA-10102-I (esc)
  \t\t2 (esc)
  \t\t4.6.142.10 (esc)
  \t\t19A2 (esc)
  \t\t0712 (esc)
  \t\tCNA-10102-I (esc)
  \t\t4.6.142.10 (esc)
  \t\t8.3.5.68.5p; HB (esc)
  \t\tiSCSI (esc)
  \t\t11D0 (esc)
  \t\t1C3E (esc)
  \t\tnone (esc)
  
  \t\t/usr/sbin/ocmanager/hbacmd hbaattributes 00:00:c9:a1:00:01 > blade//VM10250117_0_hba_attributes.out (esc)
  
  \t\tSuccess, "hbacmd hbaattributes 00:00:c9:a1:00:01" command returned code 0. (esc)
  
  \t\tHBA Attributes for 00:00:c9:a1:00:01 (esc)
  
  \t\tVM10250117 (esc)
  \t\tCNA-10102-FM (esc)
  \t\t2 (esc)
  \t\t4.6.142.10 (esc)
  \t\t19A2 (esc)
  \t\t0700 (esc)
  \t\tCNA-10102-FM (esc)
  \t\t4.6.142.10 (esc)
  \t\t8.3.5.68.5p; HB (esc)
  \t\tNIC (esc)
  \t\t11C1 (esc)
  \t\t1C3E (esc)
  \t\tnone (esc)
  
  \t\t/usr/sbin/ocmanager/hbacmd hbaattributes 00:00:c9:a1:00:02 > blade//VM10250117_1_hba_attributes.out (esc)
  
  \t\tSuccess, "hbacmd hbaattributes 00:00:c9:a1:00:02" command returned code 0. (esc)
  
  \t\tHBA Attributes for 00:00:c9:a1:00:02 (esc)
  
  \t\tVM10250117 (esc)
  \t\tCNA-10102-FM (esc)
  \t\t2 (esc)
  \t\t4.6.142.10 (esc)
  \t\t19A2 (esc)
  \t\t0700 (esc)
  \t\tCNA-10102-FM (esc)
  \t\t4.6.142.10 (esc)
  \t\t8.3.5.68.5p; HB (esc)
  \t\tNIC (esc)
  \t\t11C1 (esc)
  \t\t1C3E (esc)
  \t\tnone (esc)
  
  \t\t/usr/sbin/ocmanager/hbacmd hbaattributes 00:00:c9:b2:00:01 > blade//VM20713302_0_hba_attributes.out (esc)
  
  \t\tSuccess, "hbacmd hbaattributes 00:00:c9:b2:00:01" command returned code 0. (esc)
  
  \t\tHBA Attributes for 00:00:c9:b2:00:01 (esc)
  
  \t\tVM20713302 (esc)
  \t\tCNA-10102-FX (esc)
  \t\t2 (esc)
  \t\t4.6.142.10 (esc)
  \t\t19A2 (esc)
  \t\t0700 (esc)
  \t\tCNA-10102-FX (esc)
  \t\t4.6.142.10 (esc)
  \t\t8.3.5.68.5p; HB (esc)
  \t\tNIC (esc)
  \t\t11C2 (esc)
  \t\t1C3E (esc)
  \t\tnone (esc)
  
  \t\t/usr/sbin/ocmanager/hbacmd hbaattributes 00:00:c9:b2:00:02 > blade//VM20713302_1_hba_attributes.out (esc)
  
  \t\tSuccess, "hbacmd hbaattributes 00:00:c9:b2:00:02" command returned code 0. (esc)
  
  \t\tHBA Attributes for 00:00:c9:b2:00:02 (esc)
  
  \t\tVM20713302 (esc)
  \t\tCNA-10102-FX (esc)
  \t\t2 (esc)
  \t\t4.6.142.10 (esc)
  \t\t19A2 (esc)
  \t\t0700 (esc)
  \t\tCNA-10102-FX (esc)
  \t\t4.6.142.10 (esc)
  \t\t8.3.5.68.5p; HB (esc)
  \t\tNIC (esc)
  \t\t11C2 (esc)
  \t\t1C3E (esc)
  \t\tnone (esc)
  
  \t\t\t/usr/sbin/ocmanager/hbacmd targetmapping 10:00:00:00:c9:b2:00:11 > blade//VM20713302_2_target_mapping.out (esc)
  
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
  
  \t\t\t/usr/sbin/ocmanager/hbacmd targetmapping 10:00:00:00:c9:b2:00:12 > blade//VM20713302_3_target_mapping.out (esc)
  
  \t\t\tSuccess, "hbacmd targetmapping 10:00:00:00:c9:b2:00:12" command returned code 0. (esc)
  
  \t\t\tTarget Mapping for 10:00:00:00:c9:b2:00:12 (esc)
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
  
  \t\t\t/usr/sbin/ocmanager/hbacmd targetmapping 10:00:00:00:c9:a1:00:11 > blade//VM10250117_2_target_mapping.out (esc)
  
  \t\t\tSuccess, "hbacmd targetmapping 10:00:00:00:c9:a1:00:11" command returned code 0. (esc)
  
  \t\t\tTarget Mapping for 10:00:00:00:c9:a1:00:11 (esc)
  \t\t\t0000000000000000 (esc)
  \t\t\t0 (esc)
  \t\t\t/dev/sdb (esc)
  \t\t\tDGC (esc)
  \t\t\tMarlovan_CX1 (esc)
  \t\t\t0430 (esc)
  \t\t\tDisk (esc)
  \t\t\t102400 MB (esc)
  \t\t\t512 Bytes (esc)
  \t\t\t0000000000000001 (esc)
  \t\t\t1 (esc)
  \t\t\t/dev/sdc (esc)
  \t\t\tDGC (esc)
  \t\t\tMarlovan_CX1 (esc)
  \t\t\t0430 (esc)
  \t\t\tDisk (esc)
  \t\t\t102400 MB (esc)
  \t\t\t512 Bytes (esc)
  
  \t\t\t/usr/sbin/ocmanager/hbacmd targetmapping 10:00:00:00:c9:a1:00:12 > blade//VM10250117_3_target_mapping.out (esc)
  
  \t\t\tSuccess, "hbacmd targetmapping 10:00:00:00:c9:a1:00:12" command returned code 0. (esc)
  
  \t\t\tTarget Mapping for 10:00:00:00:c9:a1:00:12 (esc)
  \t\t\t0000000000000000 (esc)
  \t\t\t0 (esc)
  \t\t\t/dev/sdb (esc)
  \t\t\tDGC (esc)
  \t\t\tMarlovan_CX1 (esc)
  \t\t\t0430 (esc)
  \t\t\tDisk (esc)
  \t\t\t102400 MB (esc)
  \t\t\t512 Bytes (esc)
  \t\t\t0000000000000001 (esc)
  \t\t\t1 (esc)
  \t\t\t/dev/sdc (esc)
  \t\t\tDGC (esc)
  \t\t\tMarlovan_CX1 (esc)
  \t\t\t0430 (esc)
  \t\t\tDisk (esc)
  \t\t\t102400 MB (esc)
  \t\t\t512 Bytes (esc)
  
  \t\t\t/usr/sbin/ocmanager/hbacmd targetmapping 10:00:00:00:c9:d4:00:01 > blade//VM40019005_0_target_mapping.out (esc)
  
  \t\t\tSuccess, "hbacmd targetmapping 10:00:00:00:c9:d4:00:01" command returned code 0. (esc)
  
  \t\t\tTarget Mapping for 10:00:00:00:c9:d4:00:01 (esc)
  \t\t\t0000000000000000 (esc)
  \t\t\t0 (esc)
  \t\t\t/dev/sdb (esc)
  \t\t\tDGC (esc)
  \t\t\tMarlovan_CX1 (esc)
  \t\t\t0430 (esc)
  \t\t\tDisk (esc)
  \t\t\t102400 MB (esc)
  \t\t\t512 Bytes (esc)
  \t\t\t0000000000000001 (esc)
  \t\t\t1 (esc)
  \t\t\t/dev/sdc (esc)
  \t\t\tDGC (esc)
  \t\t\tMarlovan_CX1 (esc)
  \t\t\t0430 (esc)
  \t\t\tDisk (esc)
  \t\t\t102400 MB (esc)
  \t\t\t512 Bytes (esc)
  
  
  Original input list.
  
  0\tCNA-10102-FX FCoE VM20713302 2 0 (esc)
  1\tCNA-10102-FX FCoE VM20713302 3 1 (esc)
  2\tCNA-10102-FM FCoE VM10250117 2 0 (esc)
  3\tCNA-10102-FM FCoE VM10250117 3 1 (esc)
  4\tFCA-8001 FC VM40019005 0 0 (esc)
  5\tCNA-10102-I iSCSI VM30550041 1 1 (esc)
  6\tCNA-10102-I iSCSI VM30550041 0 0 (esc)
  7\tCNA-10102-FM NIC VM10250117 0 0 (esc)
  8\tCNA-10102-FM NIC VM10250117 1 1 (esc)
  9\tCNA-10102-FX NIC VM20713302 0 0 (esc)
  10\tCNA-10102-FX NIC VM20713302 1 1 (esc)
  
  
  List of CNA controller.
  
  0\tCNA-10102-FX FCoE VM20713302 2 0 (esc)
  1\tCNA-10102-FX FCoE VM20713302 3 1 (esc)
  2\tCNA-10102-FM FCoE VM10250117 2 0 (esc)
  3\tCNA-10102-FM FCoE VM10250117 3 1 (esc)
  4\tCNA-10102-I iSCSI VM30550041 1 1 (esc)
  5\tCNA-10102-I iSCSI VM30550041 0 0 (esc)
  6\tCNA-10102-FM NIC VM10250117 0 0 (esc)
  7\tCNA-10102-FM NIC VM10250117 1 1 (esc)
  8\tCNA-10102-FX NIC VM20713302 0 0 (esc)
  9\tCNA-10102-FX NIC VM20713302 1 1 (esc)
  
  FC and iSCSI ports detected.
  
  
  Total Result after PCI function sort.
  
  0\tCNA-10102-FX NIC VM20713302 0 0 (esc)
  1\tCNA-10102-FX NIC VM20713302 1 1 (esc)
  2\tCNA-10102-FX FCoE VM20713302 2 0 (esc)
  3\tCNA-10102-FX FCoE VM20713302 3 1 (esc)
  4\tCNA-10102-FM NIC VM10250117 0 0 (esc)
  5\tCNA-10102-FM NIC VM10250117 1 1 (esc)
  6\tCNA-10102-FM FCoE VM10250117 2 0 (esc)
  7\tCNA-10102-FM FCoE VM10250117 3 1 (esc)
  8\tCNA-10102-I iSCSI VM30550041 0 0 (esc)
  9\tCNA-10102-I iSCSI VM30550041 1 1 (esc)
  
  ******************************************************************************** 
  
  List of Fibre-Channel-Controller and attached Online-Storage-Systems:
  
    Emulex Corporation\tCNA-10102-FX\tFCoE\tVM20713302  port 0  function 2 (esc)
  
  \tNRB (esc)
  \tMarlovan_SX1 (esc)
  \t7.12 (esc)
  
    Emulex Corporation\tCNA-10102-FX\tFCoE\tVM20713302  port 0  function 3 (esc)
  
  \tNRB (esc)
  \tMarlovan_SX1 (esc)
  \t7.12 (esc)
  
    Emulex Corporation\tCNA-10102-FM\tFCoE\tVM10250117  port 0  function 2 (esc)
  
  \tDGC (esc)
  \tMarlovan_CX1 (esc)
  \t0430 (esc)
  
    Emulex Corporation\tCNA-10102-FM\tFCoE\tVM10250117  port 0  function 3 (esc)
  
  \tDGC (esc)
  \tMarlovan_CX1 (esc)
  \t0430 (esc)
  
  
  ********************************************************************************
  
  InvalidCtrlSubsystemCombinationFound: 0 
  MatchingCtrlModelInstalled: 0 
  CtrlVendorSpecificSubsystemEquality: 1 
  CtrlSpecificSubsystemEquality: 1 
  
  
  *********+*********+*********+*********+*********+*********+*********+*********+
  *********+*********+*********+*********+*********+*********+*********+*********+
  \tFC_HBA_Conditions.txt: (esc)
  \tFound a matching controller-device in line 1: (esc)
  \t\tvendor-id: 19A2, device-id: 0714 (esc)
  \t\tsubvendor-id: 1C3E, subdevice-id: 11C1 (esc)
  \t\tCorrespondig data: vendor: Emulex; model: CNA-10102-F (esc)
  
  
  \t\t---------+---------+---------+---------+---------+---------+---------+---------+ (esc)
  
  \t\tPerform subsystem check for: (esc)
  \t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNumber: 0 PCI function: 2 (esc)
  
  \t\tAttached storage sub-system: (esc)
  \t\t\t\tDGC (esc)
  \t\t\t\tMarlovan_CX1 (esc)
  \t\t\t\t0430 (esc)
  \t\t\tCheck subsystem: 'Marlovan_CX' Attached subsystem: 'Marlovan_CX1'\t\t\t--> OK (esc)
  \tAlready identified reference subsystems: Marlovan_CX  Subsystem group: Marlovan_CX,CX4- (esc)
  \tReference subsystem Marlovan_CX found in Group: Marlovan_CX,CX4- (esc)
  \t\t\tAll reference subsystems appear in the same group: Marlovan_CX,CX4- (esc)
  
  \t\tTake this sub-system as reference-sub-system for this controller-device. (esc)
  \t\t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNumber: 0 PCI function: 2 (esc)
  
  \t\tTake this sub-system as reference-sub-system for vendor Emulex Corporation. (esc)
  \t\t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNumber: 0 PCI function: 2 (esc)
  
  \t\t---------+---------+---------+---------+---------+---------+---------+---------+ (esc)
  
  \t\tPerform subsystem check for: (esc)
  \t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNumber: 1 PCI function: 3 (esc)
  
  \t\tAttached storage sub-system: (esc)
  \t\t\t\tDGC (esc)
  \t\t\t\tMarlovan_CX1 (esc)
  \t\t\t\t0430 (esc)
  \t\t\tCheck subsystem: 'Marlovan_CX' Attached subsystem: 'Marlovan_CX1'\t\t\t--> OK (esc)
  \tAlready identified reference subsystems: Marlovan_CX  Subsystem group: Marlovan_CX,CX4- (esc)
  \tReference subsystem Marlovan_CX found in Group: Marlovan_CX,CX4- (esc)
  \t\t\tAll reference subsystems appear in the same group: Marlovan_CX,CX4- (esc)
  
  \t\tThis sub-system is consistent with controller specific reference-sub-system (only vendor-id was checked). (esc)
  \t\t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNumber: 1 PCI function: 3 (esc)
  
  \t\tAll sub-systems are consistent with vendor specific reference-sub-system (only vendor-id was checked) 10:00:00:00:c9:a1:00:11. (esc)
  
  ---------+---------+---------+---------+---------+---------+---------+---------+
  \tFC_HBA_Conditions.txt: (esc)
  \tFound a matching controller-device in line 1: (esc)
  \t\tvendor-id: 19A2, device-id: 0714 (esc)
  \t\tsubvendor-id: 1C3E, subdevice-id: 11C1 (esc)
  \t\tCorrespondig data: vendor: Emulex; model: CNA-10102-F (esc)
  
  
  \t\t---------+---------+---------+---------+---------+---------+---------+---------+ (esc)
  
  \t\tPerform subsystem check for: (esc)
  \t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNumber: 0 PCI function: 2 (esc)
  \t\tSubsystem check already done => continue. (esc)
  
  \t\t---------+---------+---------+---------+---------+---------+---------+---------+ (esc)
  
  \t\tPerform subsystem check for: (esc)
  \t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNumber: 1 PCI function: 3 (esc)
  \t\tSubsystem check already done => continue. (esc)
  ---------+---------+---------+---------+---------+---------+---------+---------+
  
  *********+*********+*********+*********+*********+*********+*********+*********+
  *********+*********+*********+*********+*********+*********+*********+*********+
  
  OverallSubSystemCheck returned: 1 
  InvalidCtrlSubsystemCombinationFound: 0 
  MatchingCtrlModelInstalled: 1 
  CtrlVendorSpecificSubsystemEquality: 1 
  CtrlSpecificSubsystemEquality: 1 

The statuses of the three checks, and of the selection.

  $ vendor_wide='--ctrl-vendor-wide-identical -pci-id 19A2:0714'
  $ simulated -v 2 $vendor_wide | grep -A9 '^vendor specific'
  vendor specific reference-sub-system 1 >NRB< >DGC<.
  \t\tAt least one sub-system differs from vendor specific reference-sub-system (different vendors). (esc)
  
  
  \t\t---------+---------+---------+---------+---------+---------+---------+---------+ (esc)
  
  \t\tPerform subsystem check for: (esc)
  \t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNumber: 1 PCI function: 3 (esc)
  
  \t\tAttached storage sub-system: (esc)
  --
  vendor specific reference-sub-system 0 >NRB< >DGC<.
  \t\tAt least one sub-system differs from vendor specific reference-sub-system (different vendors). (esc)
  
  $ simulated -v 3 $vendor_wide | tail -n 2
  
  OverallSubSystemCheck returned: 0 
  $ simulated $vendor_wide >/dev/null
  [2]
  $ simulated --ctrl-wide-identical $vendor_wide >/dev/null
  [2]
  $ simulated --silent -pci-id 19A2:0714:1C3E:11C2
  [4]
  $ simulated -v 6 -pci-id 19A2:0714:1C3E:11C2 | grep -A8 Invaild
  \t\tInvaild attached storage sub-system found. (esc)
  \t\t\t\tNRB (esc)
  \t\t\t\tMarlovan_SX1 (esc)
  \t\t\t\t7.12 (esc)
  
  \t\tTake this sub-system as reference-sub-system for this controller-device. (esc)
  \t\t\tVendor: Emulex Corporation, Model: CNA-10102-FX SerialNumber: VM20713302 PortType: FCoE PortNumber: 0 PCI function: 2 (esc)
  
  ---------+---------+---------+---------+---------+---------+---------+---------+
  --
  \t\tInvaild attached storage sub-system found. (esc)
  \t\t\t\tNRB (esc)
  \t\t\t\tMarlovan_SX1 (esc)
  \t\t\t\t7.12 (esc)
  
  \t\tTake this sub-system as reference-sub-system for this controller-device. (esc)
  \t\t\tVendor: Emulex Corporation, Model: CNA-10102-FX SerialNumber: VM20713302 PortType: FCoE PortNumber: 1 PCI function: 3 (esc)
  
  ---------+---------+---------+---------+---------+---------+---------+---------+
  $ simulated --silent -vid 19A2 -dev 0714 -subvid 1C3E -subdev 11C3
  [12]
  $ simulated -d 6
  [12]
  $ simulated --silent --qmr-mode
  $ simulated -v 3 -vn Emulex | tail -n 7
  *********+*********+*********+*********+*********+*********+*********+*********+
  *********+*********+*********+*********+*********+*********+*********+*********+
  
  *********+*********+*********+*********+*********+*********+*********+*********+
  *********+*********+*********+*********+*********+*********+*********+*********+
  
  OverallSubSystemCheck returned: 1 

The storage of one port differs from its sibling's: the controllers are no
longer alike, and neither is the vendor's storage.

  $ sed -i 's/: DGC/: NRB/; s/_CX1/_SX1/' blade/VM10250117_3_target_mapping.out
  $ simulated -v 2 --ctrl-wide-identical -pci-id 19A2:0714:1C3E:11C1 | grep -A1 -e differs
  \t\tThis sub-system differs from controller specific reference-sub-system. (esc)
  \t\t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNumber: 1 PCI function: 3 (esc)
  --
  \t\tAt least one sub-system differs from vendor specific reference-sub-system (different vendors). (esc)
  
  $ simulated --silent --ctrl-wide-identical -pci-id 19A2:0714:1C3E:11C1
  [1]
  $ simulated --silent --check-for-valid-subsystem -pci-id 19A2:0714:1C3E:11C1

An invalid port ends the walk and counts as a difference as well. A port that
sees no storage is passed over, and iSCSI ports are never walked.

  $ lay_blade && sed -i 's/: DGC/: dgc/' blade/VM10250117_2_target_mapping.out
  $ simulated -v 2 --ctrl-wide-identical -pci-id 19A2:0714:1C3E:11C1
  
  \t\t---------+---------+---------+---------+---------+---------+---------+---------+ (esc)
  
  \t\tPerform subsystem check for: (esc)
  \t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNumber: 0 PCI function: 2 (esc)
  \t\tTake this sub-system as reference-sub-system for this controller-device. (esc)
  \t\t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNumber: 0 PCI function: 2 (esc)
  
  
  \t\t---------+---------+---------+---------+---------+---------+---------+---------+ (esc)
  
  \t\tPerform subsystem check for: (esc)
  \t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNumber: 1 PCI function: 3 (esc)
  
  \t\tAttached storage sub-system: (esc)
  \t\t\t\tDGC (esc)
  \t\t\t\tMarlovan_CX1 (esc)
  \t\t\t\t0430 (esc)
  \t\t\tCheck subsystem: 'Marlovan_CX' Attached subsystem: 'Marlovan_CX1'\t\t\t--> OK (esc)
  \tAlready identified reference subsystems: Marlovan_CX  Subsystem group: Marlovan_CX,CX4- (esc)
  \tReference subsystem Marlovan_CX found in Group: Marlovan_CX,CX4- (esc)
  \t\t\tAll reference subsystems appear in the same group: Marlovan_CX,CX4- (esc)
  
  \t\tTake this sub-system as reference-sub-system for this controller-device. (esc)
  \t\t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNumber: 1 PCI function: 3 (esc)
  
  \t\tTake this sub-system as reference-sub-system for vendor Emulex Corporation. (esc)
  \t\t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNumber: 1 PCI function: 3 (esc)
  [4]
  $ printf 'Target Mapping for x\n\n\nVendor ID: DGC\nno target\n' >blade/VM10250117_2_target_mapping.out
  $ simulated -v 2 -pci-id 19A2:0714:1C3E:11C1 | tail -n 18
  
  \t\tPerform subsystem check for: (esc)
  \t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNumber: 1 PCI function: 3 (esc)
  
  \t\tAttached storage sub-system: (esc)
  \t\t\t\tDGC (esc)
  \t\t\t\tMarlovan_CX1 (esc)
  \t\t\t\t0430 (esc)
  \t\t\tCheck subsystem: 'Marlovan_CX' Attached subsystem: 'Marlovan_CX1'\t\t\t--> OK (esc)
  \tAlready identified reference subsystems: Marlovan_CX  Subsystem group: Marlovan_CX,CX4- (esc)
  \tReference subsystem Marlovan_CX found in Group: Marlovan_CX,CX4- (esc)
  \t\t\tAll reference subsystems appear in the same group: Marlovan_CX,CX4- (esc)
  
  \t\tTake this sub-system as reference-sub-system for this controller-device. (esc)
  \t\t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNumber: 1 PCI function: 3 (esc)
  
  \t\tTake this sub-system as reference-sub-system for vendor Emulex Corporation. (esc)
  \t\t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: FCoE PortNumber: 1 PCI function: 3 (esc)
  $ simulated -v 6 -pci-id 19A2:0712:1C3E:11D0 | tail -n 17
  ---------+---------+---------+---------+---------+---------+---------+---------+
  \tFC_HBA_Conditions.txt: (esc)
  \tFound a matching controller-device in line 5: (esc)
  \t\tvendor-id: 19A2, device-id: 0712 (esc)
  \t\tsubvendor-id: 1C3E, subdevice-id: 11D0 (esc)
  \t\tCorrespondig data: vendor: Emulex; model: CNA-10102-I (esc)
  
  ---------+---------+---------+---------+---------+---------+---------+---------+
  
  *********+*********+*********+*********+*********+*********+*********+*********+
  *********+*********+*********+*********+*********+*********+*********+*********+
  
  OverallSubSystemCheck returned: 1 
  InvalidCtrlSubsystemCombinationFound: 0 
  MatchingCtrlModelInstalled: 1 
  CtrlVendorSpecificSubsystemEquality: 1 
  CtrlSpecificSubsystemEquality: 1 

A single FCoE port is chained to itself and examined once.

  $ lay_blade && sed -i '/^Port WWN.*b2:00:12/,$d' blade/local_hba_list.out
  $ sed -i 's/^\(PCI Function *\): 2/\1: 0/' blade/local_hba_list.out
  $ for f in blade/VM20713302_2_*; do mv "$f" "blade/VM20713302_0_${f#*_2_}"; done
  $ simulated -v 6 --ctrl-wide-identical -pci-id 19A2:0714 | grep -c 'Perform subsystem'
  2
  $ simulated -v 6 --ctrl-wide-identical -pci-id 19A2:0714 | grep -c 'already done'
  1

No port at all, no flash port, a serial number that is missing.

  $ lay_blade && echo "ERROR: no adapter" >blade/local_hba_list.out
  $ simulated
  
  No Blade Engine was found in this system.
  
  [13]
  $ simulated --qmr-mode
  
  No Blade Engine was found in this system.
  
  $ lay_blade && sed -i 's/^\(Port Number *\): ./\1: 3/' blade/local_hba_list.out
  $ simulated
  [22]
  $ lay_blade && sed -i 's/^\(Serial No.*\): VM2.*/\1: n\/a/' blade/local_hba_list.out
  $ simulated -v 6 -pci-id 19A2:0714 | grep -B1 -A1 -E 'SKIP'
  \t\tSuccess, "hbacmd hbaattributes 10:00:00:00:c9:b2:00:11" command returned code 0. (esc)
  \t\tNo serial number => SKIP! (esc)
  
  --
  \t\tSuccess, "hbacmd hbaattributes 10:00:00:00:c9:b2:00:12" command returned code 0. (esc)
  \t\tNo serial number => SKIP! (esc)
  
  --
  \t\tSuccess, "hbacmd hbaattributes 00:00:c9:b2:00:01" command returned code 0. (esc)
  \t\tNo serial number => SKIP! (esc)
  
  --
  \t\tSuccess, "hbacmd hbaattributes 00:00:c9:b2:00:02" command returned code 0. (esc)
  \t\tNo serial number => SKIP! (esc)
  
  --
  \t\t\tSuccess, "hbacmd targetmapping 10:00:00:00:c9:b2:00:11" command returned code 0. (esc)
  \t\t\tNo serial number => SKIP! (esc)
  
  --
  \t\t\tSuccess, "hbacmd targetmapping 10:00:00:00:c9:b2:00:12" command returned code 0. (esc)
  \t\t\tNo serial number => SKIP! (esc)
  
  --
  \tVendor: Emulex Corporation Model: CNA-10102-FX; SN: n/a port: 0 function: 0 (esc)
  \tNo serial number => SKIP (esc)
  ---------+---------+---------+---------+---------+---------+---------+---------+
  \tVendor: Emulex Corporation Model: CNA-10102-FX; SN: n/a port: 1 function: 1 (esc)
  \tNo serial number => SKIP (esc)
  ---------+---------+---------+---------+---------+---------+---------+---------+
  \tVendor: Emulex Corporation Model: CNA-10102-FX; SN: n/a port: 0 function: 2 (esc)
  \tNo serial number => SKIP (esc)
  ---------+---------+---------+---------+---------+---------+---------+---------+
  \tVendor: Emulex Corporation Model: CNA-10102-FX; SN: n/a port: 1 function: 3 (esc)
  \tNo serial number => SKIP (esc)
  ---------+---------+---------+---------+---------+---------+---------+---------+
  $ simulated --silent -pci-id 19A2:0714
