  $ . "$TESTDIR/setup.sh"

The firmware and, where one is named, the BIOS are written once for each adapter,
through its flash port.

  $ lay_standin && real $FLASH_FM | tr '\t' '>'
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

The downloads of a run: address and image.

  $ downloads() { real --silent "$@"; status=$?; sed -n 's/download //p' cli/calls.log; return $status; }
  $ no_record_of_11C1() { sed -i 's/11C1/11C3/' $conditions; }
  $ rows downloads lay_standin <<'EOF'
  > # Adapters come in the order of their flash ports.
  > $FLASH_BOTH => 0
  > | [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-4.6.142.10.ufi]
  > | [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-bios-4.6.141.grp]
  > | [00:00:c9:a1:00:01] [blade/fm10102-4.6.142.10.ufi]
  > # Any function but the flash port does not count as the adapter's flash.
  > --flash $FM => 0 [00:00:c9:a1:00:01] [*ufi]\n[00:00:c9:a1:00:01] [*ufi]
  > # All four ids count for the record, even if the selection names two.
  > no_record_of_11C1 :: $FLASH_BOTH => 0 *FX/fx-4*\n*FX/fx-b*
  > # A check beside it must pass first.
  > --flash --check-for-valid-subsystem $FX => 4
  > # A download that fails ends the run.
  > on download1 'exit 7' :: $FLASH_BOTH => 10 *FX/fx-4*
  > on download2 'exit 7' :: $FLASH_BOTH => 10 *FX/fx-4*\n*FX/fx-b*
  > # An image that is missing is found out before anything is written to its adapter.
  > rm blade/CNA-10102-FX/*.grp :: $FLASH_BOTH => 20
  > rm blade/CNA-10102-FX/*.ufi :: $FLASH_BOTH => 20
  > rm blade/fm* :: $FLASH_BOTH => 20 *FX/fx-4*\n*FX/fx-b*
  > EOF

What a flash says.

  $ fx_serial() { sed -i "/^Serial/s%VM2.*%$1%" cli/reports/local_hba_list.out; }
  $ fx_model() { sed -i "s%CNA-10102-FX%$1%" cli/reports/local_hba_list.out; }
  $ fx_images_are_a_file() { rm -r blade/CNA-10102-FX && : >blade/CNA-10102-FX; }
  $ rows real lay_standin <<'EOF'
  > # The model's own directory, and both kinds of image.
  > $FLASH_FX => 0 ...
  > | \tFirmware path: blade/CNA-10102-FX\n...
  > | \t\t\tBIOS file found: blade/CNA-10102-FX/fx-bios-4.6.141.grp
  > | \n\tNow start flashing the BIOS.\n\t\tFlash command is: *
  > | \t\t./hbacmd download 00:00:c9:b2:00:01 *grp >> blade/CNA-10102-FX//FWtrace.out\n...
  > -v 6 $FLASH_FM => 0 ...\n\t---------+*\n\n\tFC_HBA_Conditions.txt:\n\tFound a matching* line 3:\n...
  > -v 3 --flash --ctrl-wide-identical $BOTH => 0 ...\n\t\tOverallFlashBladeEngine returned: 0*\n
  > on download1 'exit 7' :: $FLASH_FM => 10 ...\n\t\tFail, flash command returned code 1792.\n
  > # The run stops where it can't go on.
  > rm blade/CNA-10102-FX/*.grp :: $FLASH_FX => 20 ...
  > | \t\tLook for BIOS file: *.grp
  > | \tNo BIOS- or firmware-image was found in *.grp!
  > on targetmapping5 'rm hbacmd' :: $FLASH_FX => 21 ...
  > | Error: Flash command ./hbacmd is not available: No such file or directory\n
  > on targetmapping5 'mv blade old' :: $FLASH_FX => 20 ...\n\t\tFirmware directory is not available: blade/\n
  > fx_images_are_a_file :: $FLASH_FX => 20 ...\nError: Firmware directory is not available: blade/CNA-10102-FX/\n
  > # An image that goes after the look is left out.
  > on download1 'rm blade/CNA-10102-FX/*.grp' :: $FLASH_FX => 0 ...\n\t\t\tBIOS file is not available: *.grp\n\n\n...
  > # A model never leads out of the directory.
  > fx_model ./FX :: $FLASH_FX => 20 ...\n*not available: blade/./FX\n\n\tFirmware path: blade/\n...
  > fx_model .. :: $FLASH_FX => 20 ...\n*not available: blade/..\n\n\tFirmware path: blade/\n...
  > fx_serial n/a :: $FLASH_FX => 12 ...
  > | System:
  > | \tFound an adequate installed controller-device:
  > | \t\tVendor:*SerialNumber: n/a*
  > | \t\tPort index: 0; Ignore this port due to missing serial number  => SKIP.
  > | System:\n...
  > EOF

What the shell would not read as one word is quoted, and arrives as it was.

  $ odd_names() {
  >     images="blade/it's \$(FX)" && mv blade/CNA-10102-FX "$images" && mv "$images"/fx-4* "$images/;a b.ufi"
  >     fx_model "${images#*/}" && sed -i 's/: 00:00:c9:b2:00:01/: 00;b2/' cli/reports/local_hba_list.out
  > }
  $ rows downloads lay_standin <<'EOF'
  > odd_names :: $FLASH_FX => 0
  > | [00;b2] [blade/it's $(FX)/;a b.ufi]
  > | [00;b2] [blade/it's $(FX)/fx-bios-4.6.141.grp]
  > EOF

The search takes a name prefix or an extension, never a hidden file: the pattern in the
record, the files that there are, what is found.

  $ long_name=$(printf %078d 0)
  $ search() {
  >     lay_blade && rm -r blade/*.ufi blade/CNA* && (cd blade && touch $2)
  >     sed -i "s/| \*.ufi *| \*.grp/| $1 | $1 /" $conditions
  >     simulated $FLASH_FX | sed -n 's/.*Found.*image: //p; s/.*was found in/none/p' | uniq
  > }
  $ rows search <<'EOF'
  > '*.grp' 'a.GRP b.gr .c.grp grp' => 0 none *.grp!
  > '*.grp' 'x.grpx' => 0 blade/x.grpx '*.grp'
  > AB 'aAB .AB A AB1' => 0 blade/AB1 'AB'
  > .AB .AB => 0 none .AB!
  > # A pattern has up to 79 characters.
  > ${long_name}1 ${long_name}2 => 0 none 0*1!
  > EOF

A signal waits for the download that runs: it ends, and its result is told, before the
tool ends, ahead of the next one. The inventory can be broken off.

  $ interrupted() {
  >     lay_standin && on "$1" "$2; echo finished >>cli/calls.log"
  >     setsid sh -c 'echo $$ >cli/pid; exec env --default-signal "$0" --conpath blade '"$FLASH_FX" "$CNATOOL_STANDIN" >out 2>&1
  >     status=$?; grep -o "Success, flash.*" out; tail -n 1 cli/calls.log; return $status
  > }
  $ to_all='kill -s $signal -- -$(cat cli/pid) $PPID $$; sleep 0.1'
  $ to_tool='kill -s $signal $(cat cli/pid); sleep 0.1'
  $ own_handler="env --default-signal=INT sh -c 'trap \"exit 9\" INT; kill -s INT -- -\$(cat cli/pid); sleep 0.1'"
  $ rows interrupted 2>/dev/null <<'EOF'
  > download1 "signal=INT; $to_all" => 130 Success, flash command returned code 0.\nfinished
  > download1 "signal=TERM; $to_all" => 143 Success, flash command returned code 0.\nfinished
  > download1 "signal=USR1; $to_tool" => 138 Success, flash command returned code 0.\nfinished
  > download1 "signal=ALRM; $to_tool" => 142 Success, flash command returned code 0.\nfinished
  > # A download is out of the terminal's reach, even when the CLI has handlers of its own.
  > download1 "$own_handler" => 130 Success, flash command returned code 0.\nfinished
  > hbaattributes2 'kill -INT $(cat cli/pid); sleep 0.1' => 130 hbaattributes [10:00:00:00:c9:b2:00:12]
  > EOF

Nor is it broken off by a reader who has gone.

  $ lay_standin && on download1 'sleep 0.1; echo progress >&2 || :; echo finished >>cli/calls.log'
  $ (real $FLASH_FX 2>&1; echo "=> $?" >status) | head -n 1; cat status; tail -n 2 cli/calls.log | cut -c 1-20
  \tInstalled controller-device: (esc)
  => 0
  finished
  download [00:00:c9:b
