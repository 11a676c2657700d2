  $ . "$TESTDIR/setup.sh"
  $ all='--flash -pci-id 19A2:0700' fx=--flash\ -pci-id\ 19A2:0700:1C3E:11C2 fm=--flash\ -pci-id\ 19A2:0700:1C3E:11C1
  $ told() { real "$@"; status=$?; sed -n 's/download//p' cli/calls.log; return $status; }

The firmware and, where one is named, the BIOS are written once for each adapter,
through its flash port.

  $ lay_standin && real $fm | tr '\t' '>'
  >Installed controller-device:
  >>Vendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: NIC PortNumber: 0 PortFunction: 0
  >>Port index: 0.
  
  >>Firmware directory is not available: blade/CNA-10102-FM
  
  >Firmware path: blade/
  >>Look for firmware file: fm10102-
  >>Found BIOS- or firmware-image: blade/fm10102-4.6.142.10.ufi 'fm10102-'
  >>>Firmware file found: blade/fm10102-4.6.142.10.ufi
  
  >Now start flashing the firmware.
  >>Flash command is: 
  >>./hbacmd download 00:00:c9:a1:00:01 blade/fm10102-4.6.142.10.ufi >> blade//FWtrace.out
  
  >>Success, flash command returned code 0.
  
  
  >---------+---------+---------+---------+---------+---------+---------+---------+
  >Installed controller-device:
  >>Vendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: NIC PortNumber: 1 PortFunction: 1
  >>Port index: 0 Firmware already flashed => SKIP.
  
  $ cat blade/FWtrace.out
  Downloaded blade/fm10102-4.6.142.10.ufi to 00:00:c9:a1:00:01

Any other function does not count as the adapter's flash. A failing download ends
the run, an image that is missing is found out before anything is written. A check
beside it must pass first. What the shell would not read as one word is quoted.

  $ odd() { d="blade/it's \$(FX)" && mv blade/CNA* "$d" && mv "$d"/fx-4* "$d/;a b.ufi" && sed -i "s/: CNA-10102-FX/: ${d#*/}/; s/: 00:00:c9:b2:00:01/: 00;b2/" cli/reports/local*; }
  $ rows told lay_standin <<'EOF'
  > --silent $all => 0 *b2:00:01] [[]blade/CNA-10102-FX/fx-4*ufi]\n*fx-b*grp]\n*a1:00:01] [[]blade/fm10*ufi]\n
  > $fx => 0 *\tFirmware path: blade/CNA-10102-FX\n*\t\t\tBIOS file found: blade/CNA*grp\n\n\tNow start flashing the BIOS.\n*grp >> blade/CNA-10102-FX//FWtrace.out\n\n\t\tSuccess*
  > -v 6 $fm => 0 *\t---*+\n\n\tFC_HBA_Conditions.txt:\n\tFound a matching controller-device in line 3:\n*
  > --silent --flash -pci-id 19A2:0714:1C3E:11C1 => 0  [[]*a1:00:01]*\n [[]*a1:00:01]*]\n
  > $all --simulate --silent => 13 sed:*
  > echo 'exit 7' >cli/call18 :: $all => 10 *\t\tFail, flash command returned code 1792.\n\n [[]*ufi]\n
  > echo 'exit 7' >cli/call19 :: --silent $all => 10 *ufi]\n*grp]\n
  > rm blade/CNA-10102-FX/*.grp :: $all => 20 *fx-4.6.142.10.ufi '\*.ufi'\n\t\tLook for BIOS file: \*.grp\n\tNo BIOS- or firmware-image was found in \*.grp!\n
  > rm blade/CNA-10102-FX/*.ufi :: $all => 20 *firmware file: \*.ufi\n\tNo BIOS- or firmware-image was found in \*.ufi!\n
  > rm blade/fm* :: --silent $all => 20 *ufi]\n*grp]\n
  > echo 'rm hbacmd' >cli/call17 :: $fx => 21 *Error: Flash command ./hbacmd is not available: No such file or directory\n\n
  > echo 'rm blade/CNA-10102-FX/*.grp' >cli/call18 :: $all => 0 *\t\t\tBIOS file is not available: \*.grp\n\n\n*fx-4*]\n*fm*]\n
  > echo 'mv blade old' >cli/call17 :: $fx => 20 *directory is not available: blade/\n\n
  > rm -r blade/CNA* && : >blade/CNA-10102-FX :: $fx => 20 *Error: Firmware directory is not available: blade/CNA-10102-FX/\n\n
  > --silent --flash --check-for-valid-subsystem -pci-id 19A2:0714:1C3E:11C2 => 4
  > --silent --flash --ctrl-vendor-wide-identical -pci-id 19A2:0714 => 2
  > -v 3 --flash --ctrl-wide-identical -pci-id 19A2:0714 => 0 *\t\tOverallFlashBladeEngine returned: 0 \n\n*fx-4*\n*fx-b*\n*fx-4*\n*fx-b*\n*fm*\n*fm*]\n
  > --silent --flash --ctrl-wide-identical -pci-id 19A2:FFFF => 12
  > sed -i 's/11C[12]/11C3/' blade/FC* :: $all => 0
  > sed -i '/^Serial/s/VM2.*/n\/a/' cli/reports/local* :: $fx => 12 *System:\n\tFound an adequate installed controller-device:\n\t\tVendor:*SerialNumber: n/a*\n\t\tPort index: 0; Ignore this port due to missing serial number  => SKIP.\nSystem:*
  > odd :: $fx => 0 *./hbacmd download '00;b2' 'blade/it'\\\\''s $(FX)/;a b.ufi' >> 'blade/it'\\\\''s $(FX)//FWtrace.out'\n*\n [[]00;b2] [[]blade/it's $(FX)/;a b.ufi]\n [[]00;b2] [[]blade/it's $(FX)/fx-b*]\n
  > sed -i 's/CNA-10102-FX/.\/FX/' cli/reports/local* :: $fx => 20 *not available: blade/./FX\n\n\tFirmware path: blade/\n*found in \*.grp!\n
  > sed -i 's/CNA-10102-FX/../' cli/reports/local* :: $fx => 20 *not available: blade/..\n\n\tFirmware path: blade/\n*
  > EOF

The search takes a name prefix or an extension, never a hidden file.

  $ search() {
  >     lay_blade && rm -r blade/*.ufi blade/CNA* && (cd blade && touch $2)
  >     sed -i "s/| \*.ufi *| \*.grp/| $1 | /" blade/FC_HBA_Conditions.txt
  >     simulated $fx | sed -n 's/.*Found.*image: //p; s/.*was found in/none/p'
  > }
  $ rows search <<'EOF'
  > '*.grp' 'a.GRP b.gr .c.grp grp' => 0 none \*.grp!\n
  > '*.grp' 'x.grpx' => 0 blade/x.grpx '\*.grp'\n
  > '*.tar.gz' 'x.tar.gz' => 0 none \*.tar.gz!\n
  > 'AB' 'aAB .AB A AB1' => 0 blade/AB1 'AB'\n
  > '.AB' '.AB' => 0 none .AB!\n
  > EOF

A signal waits for the download that runs: it ends, and its result is told,
before the tool ends, ahead of the next one. Not even a CLI with handlers of its own,
or one whose reader has gone, is broken off. The inventory can be.

  $ interrupted() {
  >     lay_standin && echo "$2; echo finished >>cli/calls.log" >"cli/$1"
  >     setsid sh -c 'echo $$ >cli/pid; exec env --default-signal "$0" --conpath blade '"$fm" "$CNATOOL_STANDIN" >out 2>&1
  >     echo "=> $?" $(grep -o "Success, flash.*" out) $(tail -n 1 cli/calls.log)
  > }
  $ for signal in INT TERM HUP QUIT; do interrupted call18 "kill -s $signal -- -\$(cat cli/pid) \$PPID \$\$; sleep 0.1"; done 2>/dev/null
  => 130 Success, flash command returned code 0. finished
  => 143 Success, flash command returned code 0. finished
  => 129 Success, flash command returned code 0. finished
  => 131 Success, flash command returned code 0. finished
  $ interrupted call18 "sh -c 'trap \"exit 9\" INT TERM; kill -s INT -- -\$(cat cli/pid); sleep 0.1'"
  => 130 Success, flash command returned code 0. finished
  $ lay_standin && echo 'sleep 0.1; echo progress >&2 || :; echo finished >>cli/calls.log' >cli/call18
  $ (told $fx 2>&1; echo "=> $?" >status) | head -n 1; cat status; tail -n 2 cli/calls.log | cut -c 1-20
  \tInstalled controller-device: (esc)
  => 0
  finished
  download [00:00:c9:b
  $ interrupted call3 'kill -INT $(cat cli/pid); sleep 0.1'
  => 130 hbaattributes [10:00:00:00:c9:b2:00:12]
