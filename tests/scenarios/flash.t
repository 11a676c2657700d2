  $ . "$TESTDIR/setup.sh"

Two adapters of two ports each, selected by the function that they are flashed
through: the firmware and, where one is named, the BIOS are written once for each
adapter, the other port is skipped. The calls behind the inventory's, and what
they leave.

  $ flash='--flash -pci-id 19A2:0700'
  $ downloads() { grep -v -e listhbas -e hbaattributes -e targetmapping cli/calls.log || :; }
  $ told() { lay_standin && eval "$1" && { shift && real --silent "$@"; echo "=> $?" && downloads; }; }
  $ lay_standin && real -v 3 $flash | sed -n '/Installed/,$p'
  \tInstalled controller-device: (esc)
  \t\tVendor: Emulex Corporation, Model: CNA-10102-FX SerialNumber: VM20713302 PortType: NIC PortNumber: 0 PortFunction: 0 (esc)
  \t\tPort index: 0. (esc)
  
  \tFirmware path: blade/CNA-10102-FX (esc)
  \t\tLook for firmware file: *.ufi (esc)
  \t\tFound BIOS- or firmware-image: blade/CNA-10102-FX/fx-4.6.142.10.ufi '*.ufi' (esc)
  \t\tLook for BIOS file: *.grp (esc)
  \t\tFound BIOS- or firmware-image: blade/CNA-10102-FX/fx-bios-4.6.141.grp '*.grp' (esc)
  \t\t\tFirmware file found: blade/CNA-10102-FX/fx-4.6.142.10.ufi (esc)
  
  \tNow start flashing the firmware. (esc)
  \t\tFlash command is:  (esc)
  \t\t./hbacmd download 00:00:c9:b2:00:01 blade/CNA-10102-FX/fx-4.6.142.10.ufi >> blade/CNA-10102-FX//FWtrace.out (esc)
  
  \t\tSuccess, flash command returned code 0. (esc)
  
  \t\t\tBIOS file found: blade/CNA-10102-FX/fx-bios-4.6.141.grp (esc)
  
  \tNow start flashing the BIOS. (esc)
  \t\tFlash command is:  (esc)
  \t\t./hbacmd download 00:00:c9:b2:00:01 blade/CNA-10102-FX/fx-bios-4.6.141.grp >> blade/CNA-10102-FX//FWtrace.out (esc)
  
  \t\tSuccess, flash command returned code 0. (esc)
  
  
  \t---------+---------+---------+---------+---------+---------+---------+---------+ (esc)
  \tInstalled controller-device: (esc)
  \t\tVendor: Emulex Corporation, Model: CNA-10102-FX SerialNumber: VM20713302 PortType: NIC PortNumber: 1 PortFunction: 1 (esc)
  \t\tPort index: 0 Firmware already flashed => SKIP. (esc)
  
  \tInstalled controller-device: (esc)
  \t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: NIC PortNumber: 0 PortFunction: 0 (esc)
  \t\tPort index: 0. (esc)
  
  \t\tFirmware directory is not available: blade/CNA-10102-FM (esc)
  
  \tFirmware path: blade/ (esc)
  \t\tLook for firmware file: fm10102- (esc)
  \t\tFound BIOS- or firmware-image: blade/fm10102-4.6.142.10.ufi 'fm10102-' (esc)
  \t\t\tFirmware file found: blade/fm10102-4.6.142.10.ufi (esc)
  
  \tNow start flashing the firmware. (esc)
  \t\tFlash command is:  (esc)
  \t\t./hbacmd download 00:00:c9:a1:00:01 blade/fm10102-4.6.142.10.ufi >> blade//FWtrace.out (esc)
  
  \t\tSuccess, flash command returned code 0. (esc)
  
  
  \t---------+---------+---------+---------+---------+---------+---------+---------+ (esc)
  \tInstalled controller-device: (esc)
  \t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: NIC PortNumber: 1 PortFunction: 1 (esc)
  \t\tPort index: 0 Firmware already flashed => SKIP. (esc)
  
  \t\tOverallFlashBladeEngine returned: 0  (esc)
  
  $ downloads; cat blade/FWtrace.out blade/CNA-10102-FX/FWtrace.out
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-4.6.142.10.ufi]
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-bios-4.6.141.grp]
  download [00:00:c9:a1:00:01] [blade/fm10102-4.6.142.10.ufi]
  Downloaded blade/fm10102-4.6.142.10.ufi to 00:00:c9:a1:00:01
  Downloaded blade/CNA-10102-FX/fx-4.6.142.10.ufi to 00:00:c9:b2:00:01
  Downloaded blade/CNA-10102-FX/fx-bios-4.6.141.grp to 00:00:c9:b2:00:01
  $ lay_blade && simulated -v 6 $flash | sed -n '/Found a match/,/Look for/p' | head -n 14
  \tFound a matching controller-device in line 4: (esc)
  \t\tvendor-id: 19A2, device-id: 0700 (esc)
  \t\tsubvendor-id: 1C3E, subdevice-id: 11C2 (esc)
  \t\tCorrespondig data: vendor: Emulex; model: CNA-10102-F (esc)
  
  \tInstalled controller-device: (esc)
  \t\tVendor: Emulex Corporation, Model: CNA-10102-FX SerialNumber: VM20713302 PortType: NIC PortNumber: 0 PortFunction: 0 (esc)
  \t\tPort index: 0. (esc)
  
  \tFirmware path: blade/CNA-10102-FX (esc)
  \t\tLook for firmware file: *.ufi (esc)
  \tFound a matching controller-device in line 4: (esc)
  \t\tvendor-id: 19A2, device-id: 0700 (esc)
  \t\tsubvendor-id: 1C3E, subdevice-id: 11C2 (esc)
  $ told : $flash --simulate; ls cli
  => 13
  grep: cli/calls.log: No such file or directory
  reports

Any other function does not count as the adapter's flash: each of its ports
flashes the adapter anew.

  $ told : --flash -pci-id 19A2:0714:1C3E:11C1
  => 0
  download [00:00:c9:a1:00:01] [blade/fm10102-4.6.142.10.ufi]
  download [00:00:c9:a1:00:01] [blade/fm10102-4.6.142.10.ufi]

A failing firmware download ends the run before the BIOS, a failing BIOS
download before the next adapter.

  $ lay_standin && echo 'exit 7' >cli/call18 && real $flash | grep Fail
  \t\tFail, flash command returned code 1792. (esc)
  $ told "echo 'exit 7' >cli/call18" $flash
  => 10
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-4.6.142.10.ufi]
  $ told "echo 'exit 7' >cli/call19" $flash
  => 10
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-4.6.142.10.ufi]
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-bios-4.6.141.grp]

An image that is missing is found out before anything is written.

  $ lay_standin && rm blade/CNA-10102-FX/*.grp && real $flash | tail -n 4
  \t\tLook for firmware file: *.ufi (esc)
  \t\tFound BIOS- or firmware-image: blade/CNA-10102-FX/fx-4.6.142.10.ufi '*.ufi' (esc)
  \t\tLook for BIOS file: *.grp (esc)
  \tNo BIOS- or firmware-image was found in *.grp! (esc)
  $ told 'rm blade/CNA-10102-FX/*.grp' $flash
  => 20
  $ told 'rm -r blade/CNA-10102-FX; echo x >blade/ax.ufi' $flash
  => 20
  $ told 'rm blade/fm*' $flash
  => 20
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-4.6.142.10.ufi]
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-bios-4.6.141.grp]

The CLI, or an image, gone meanwhile.

  $ lay_standin && echo 'rm hbacmd' >cli/call17 && real $flash | only Error
  Error: Flash command ./hbacmd is not available: No such file or directory
  $ told "echo 'rm hbacmd' >cli/call17" $flash
  => 21
  $ lay_standin && echo 'rm blade/CNA-10102-FX/*.grp' >cli/call18 && real $flash | grep 'not available'
  \t\t\tBIOS file is not available: *.grp (esc)
  \t\tFirmware directory is not available: blade/CNA-10102-FM (esc)
  $ downloads
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-4.6.142.10.ufi]
  download [00:00:c9:a1:00:01] [blade/fm10102-4.6.142.10.ufi]

A check beside it must pass first; no matching port, no matching record.

  $ checked='--flash --check-for-valid-subsystem -pci-id'
  $ told : $checked 19A2:0714:1C3E:11C2
  => 4
  $ lay_standin && real -v 3 $checked 19A2:0714:1C3E:11C2 | tail -n 1
  OverallSubSystemCheck returned: 0 
  $ told : $checked 19A2:0700
  => 4
  $ told : --ctrl-vendor-wide-identical --flash -pci-id 19A2:0714
  => 2
  $ told : --ctrl-wide-identical --flash -pci-id 19A2:0714
  => 0
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-4.6.142.10.ufi]
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-bios-4.6.141.grp]
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-4.6.142.10.ufi]
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-bios-4.6.141.grp]
  download [00:00:c9:a1:00:01] [blade/fm10102-4.6.142.10.ufi]
  download [00:00:c9:a1:00:01] [blade/fm10102-4.6.142.10.ufi]
  $ told : --ctrl-wide-identical --flash -pci-id 19A2:FFFF
  => 12
  $ told : --qmr-mode --flash
  => 0
  $ told : --flash -pci-id 19A2:FFFF
  => 12
  $ told "sed -i 's/11C[12]/11C3/' blade/FC_HBA_Conditions.txt" $flash
  => 0

The search takes a name prefix or an extension, never a hidden file; a model that
would lead elsewhere names no directory.

  $ search() {
  >     lay_blade && rm -r blade/*.ufi blade/CNA*; (cd blade && touch $2)
  >     sed -i "s/| \*.ufi *| \*.grp/| $1 | /" blade/FC_HBA_Conditions.txt
  >     simulated $flash:1C3E:11C2 | sed -n 's/.*Found.*image: /found /p;s/.*was found in/none/p'
  > }
  $ search '*.grp' 'a.GRP b.gr .c.grp'
  none *.grp!
  $ search '*.grp' 'x.grpx'
  found blade/x.grpx '*.grp'
  $ search '*.tar.gz' 'x.tar.gz'
  none *.tar.gz!
  $ search '*.' 'plain dotted.'
  found blade/VM40019005_0_hba_attributes.out '*.'
  $ search 'AB' 'aAB .AB AB1'
  found blade/AB1 'AB'
  $ lay_blade && sed -i 's/\(^Model *\): CNA-10102-FX/\1: ..\/blade/' blade/local_hba_list.out
  $ simulated $flash:1C3E:11C2 | grep -A2 Firmware
  \t\tFirmware directory is not available: blade/../blade (esc)
  
  \tFirmware path: blade/ (esc)
  \t\tLook for firmware file: *.ufi (esc)
  \t\tFound BIOS- or firmware-image: blade/fm10102-4.6.142.10.ufi '*.ufi' (esc)
  $ lay_blade && sed -i 's/\(^Model *\): CNA-10102-FX/\1: ../' blade/local_hba_list.out
  $ simulated $flash:1C3E:11C2 | grep -A2 Firmware
  \t\tFirmware directory is not available: blade/.. (esc)
  
  \tFirmware path: blade/ (esc)
  \t\tLook for firmware file: *.ufi (esc)
  \t\tFound BIOS- or firmware-image: blade/fm10102-4.6.142.10.ufi '*.ufi' (esc)

What the shell would not read as one word is quoted.

  $ lay_standin && mv blade/CNA-10102-FX "blade/it's \$(FX)" && mv "blade/it's \$(FX)"/fx-4* "blade/it's \$(FX)/;a b.ufi"
  $ sed -i "s/: CNA-10102-FX/: it's \$(FX)/; s/: 00:00:c9:b2:00:01/: 00;b2/" cli/reports/local_hba_list.out
  $ real $flash:1C3E:11C2 | grep -A1 'Flash command'
  \t\tFlash command is:  (esc)
  \t\t./hbacmd download '00;b2' 'blade/it'\\''s $(FX)/;a b.ufi' >> 'blade/it'\\''s $(FX)//FWtrace.out' (esc)
  --
  \t\tFlash command is:  (esc)
  \t\t./hbacmd download '00;b2' 'blade/it'\\''s $(FX)/fx-bios-4.6.141.grp' >> 'blade/it'\\''s $(FX)//FWtrace.out' (esc)
  $ downloads; ls -A "blade/it's \$(FX)"
  download [00;b2] [blade/it's $(FX)/;a b.ufi]
  download [00;b2] [blade/it's $(FX)/fx-bios-4.6.141.grp]
  ;a b.ufi
  FWtrace.out
  fx-bios-4.6.141.grp

Ports without a serial number are told of, once for each selection entry.

  $ lay_blade && sed -i 's/^\(Serial No.*\): VM2.*/\1: n\/a/' blade/local_hba_list.out
  $ simulated $flash | grep -B3 'missing serial' | head -n 8
  System:
  \tFound an adequate installed controller-device: (esc)
  \t\tVendor: Emulex Corporation, Model: CNA-10102-FX SerialNumber: n/a PortType: NIC PortNumber: 0 PortFunction: 0 (esc)
  \t\tPort index: 0; Ignore this port due to missing serial number  => SKIP. (esc)
  System:
  \tFound an adequate installed controller-device: (esc)
  \t\tVendor: Emulex Corporation, Model: CNA-10102-FX SerialNumber: n/a PortType: NIC PortNumber: 1 PortFunction: 1 (esc)
  \t\tPort index: 0; Ignore this port due to missing serial number  => SKIP. (esc)

A signal waits for the download that runs: it is finished, and its result told,
before the tool ends, ahead of the next one. Neither a CLI with handlers of its
own nor one whose reader has gone is broken off.

  $ cat >group.py <<'EOF'
  > import os, signal, sys
  > os.setpgid(0, 0)
  > for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP, signal.SIGQUIT):
  >     signal.signal(number, signal.SIG_DFL)
  > open("cli/pid", "w").write(str(os.getpid()))
  > os.execv(sys.argv[1], sys.argv[1:])
  > EOF
  $ interrupted() {
  >     lay_standin && echo "$1; echo finished >>cli/calls.log" >cli/call18
  >     python3 group.py "$CNATOOL_STANDIN" --conpath blade $flash >out 2>&1; echo "=> $?"
  >     grep "flash command returned" out; downloads
  > }
  $ for signal in INT TERM HUP QUIT; do
  >     interrupted "kill -s $signal -- -\$(cat cli/pid) \$PPID \$\$; sleep 0.2"
  > done 2>/dev/null
  => 130
  \t\tSuccess, flash command returned code 0. (esc)
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-4.6.142.10.ufi]
  finished
  => 143
  \t\tSuccess, flash command returned code 0. (esc)
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-4.6.142.10.ufi]
  finished
  => 129
  \t\tSuccess, flash command returned code 0. (esc)
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-4.6.142.10.ufi]
  finished
  => 131
  \t\tSuccess, flash command returned code 0. (esc)
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-4.6.142.10.ufi]
  finished
  $ cat >handlers.py <<'EOF'
  > import os, signal, sys, time
  > for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
  >     signal.signal(number, lambda *_: os._exit(9))
  > os.kill(-int(open("cli/pid").read()), signal.SIGINT)
  > time.sleep(0.3)
  > EOF
  $ interrupted "$(command -v python3) handlers.py || exit 9" 2>/dev/null
  => 130
  \t\tSuccess, flash command returned code 0. (esc)
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-4.6.142.10.ufi]
  finished
  $ lay_standin && echo 'sleep 0.2; echo progress >&2 || :; echo finished >>cli/calls.log' >cli/call18
  $ (real $flash 2>&1; echo "=> $?" >status) | head -n 1; cat status; downloads
  \tInstalled controller-device: (esc)
  => 0
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-4.6.142.10.ufi]
  finished
  download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-bios-4.6.141.grp]
  download [00:00:c9:a1:00:01] [blade/fm10102-4.6.142.10.ufi]

The inventory's commands can be interrupted.

  $ lay_standin && echo 'kill -INT $(cat cli/pid); sleep 0.3' >cli/call3
  $ python3 group.py "$CNATOOL_STANDIN" --conpath blade >/dev/null; echo "=> $?"; cat cli/calls.log
  => 130
  listhbas
  hbaattributes [10:00:00:00:c9:b2:00:11]
  hbaattributes [10:00:00:00:c9:b2:00:12]
