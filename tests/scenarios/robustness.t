  $ . "$TESTDIR/setup.sh"
  $ lay_blade && log=blade/Merlie_DLL.log

Nobody reads what the tool says: the run goes on and ends with its status.

  $ invalid='-v 6 -pci-id 19A2:0714:1C3E:11C2'
  $ simulated $invalid >&-
  [4]
  $ simulated $invalid >/dev/full
  [4]
  $ simulated $invalid <&- >&- 2>&-
  [4]
  $ { simulated $invalid; echo "=> $?" >&2; } | true
  => 4
  $ lay_standin && real --flash -pci-id 19A2:0700 >&- && grep -c download cli/calls.log
  3

A caller that ignores its children.

  $ lay_standin && (trap '' CHLD; real --silent --flash -pci-id 19A2:0700) && grep -c download cli/calls.log
  3

A debug run is silent on the screen and says the same in its log, from the path
of the conditions file on; only the conditions are listed by the verbose level.

  $ lay_blade && simulated -d 6 -pci-id 19A2:0714:1C3E:11C1 && echo old >>$log
  $ simulated -d 6 -pci-id 19A2:0714:1C3E:11C1
  $ simulated -v 6 -pci-id 19A2:0714:1C3E:11C1 | sed -n '/^HBA conditions/,$p' | diff - $log
  7,27d6
  < 
  < *********+*********+*********+*********+*********+*********+*********+*********+
  < 
  < List of allowed Fibre-Channel-Controller and Online-Storage-System combinations:
  < 
  < Emulex     CNA-10102-F     
  < \t\t1) DGC        Marlovan_CX,CX4- (esc)
  < \t\t2) NRB        Marlovan_SX1     (esc)
  < 
  < Emulex     CNA-10102-F     
  < \t\t1) DGC        Marlovan_CX      (esc)
  < 
  < Emulex     CNA-10102-F     
  < 
  < Emulex     CNA-10102-F     
  < 
  < Emulex     CNA-10102-I     
  < \t\t1) DGC                         (esc)
  < 
  < 
  < *********+*********+*********+*********+*********+*********+*********+*********+
  [1]
  $ stat -c %a $log
  600
  $ simulated -d 1 -pci-id 19A2:0714:1C3E:11C2; head -n 5 $log
  
  \t\t---------+---------+---------+---------+---------+---------+---------+---------+ (esc)
  
  \t\tPerform subsystem check for: (esc)
  \t\tVendor: Emulex Corporation, Model: CNA-10102-FX SerialNumber: VM20713302 PortType: FCoE PortNumber: 0 PCI function: 2 (esc)

An end ahead of time leaves it complete; without a level there is none, and
nothing is written through a link or into somebody else's file.

  $ rm blade/local_hba_list.out && simulated -d 1; cat $log
  Error: Could not open file blade//local_hba_list.out
  
  No Blade Engine was found in this system.
  
  $ rm $log && simulated -d 0; simulated -d 6 --silent; simulated -v 6 >/dev/null; ls $log
  ls: cannot access 'blade/Merlie_DLL.log': No such file or directory
  [2]
  $ echo precious >target && ln -s ../target $log && simulated -d 6; cat target
  precious
  $ rm $log && ln target $log && simulated -d 6; cat target
  precious
  $ rm $log && mkfifo $log && simulated -d 6
  [13]
