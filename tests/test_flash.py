"""The flash of the adapters: what is written through which port, what is told of it, and what can't break it off."""

import signal

import pytest

from conftest import CNATOOL_STANDIN, CONDITIONS, FCOE_IMAGES, FLASH_BOTH, FLASH_FM, FLASH_FX, FX, LIST, REAL, expect

FM_FIRMWARE = "download [00:00:c9:a1:00:01] [blade/fm10102-4.6.142.10.ufi]"
FX_FIRMWARE = "download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-4.6.142.10.ufi]"
FX_BIOS = "download [00:00:c9:b2:00:01] [blade/CNA-10102-FX/fx-bios-4.6.141.grp]"


def downloads(cli):
    return [call for call in cli.calls if call.startswith("download")]


def test_whole_flash_of_one_adapter(cli):
    expect(cli.real(FLASH_FM), 0, """\
\tInstalled controller-device:
\t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: NIC PortNumber: 0 PortFunction: 0
\t\tPort index: 0.

\t\tFirmware directory is not available: blade/CNA-10102-FM

\tFirmware path: blade/
\t\tLook for firmware file: fm10102-
\t\tFound BIOS- or firmware-image: blade/fm10102-4.6.142.10.ufi 'fm10102-'
\t\t\tFirmware file found: blade/fm10102-4.6.142.10.ufi

\tNow start flashing the firmware.
\t\tFlash command is:\x20
\t\t./hbacmd download 00:00:c9:a1:00:01 blade/fm10102-4.6.142.10.ufi >> blade//FWtrace.out

\t\tSuccess, flash command returned code 0.


\t---------+---------+---------+---------+---------+---------+---------+---------+
\tInstalled controller-device:
\t\tVendor: Emulex Corporation, Model: CNA-10102-FM SerialNumber: VM10250117 PortType: NIC PortNumber: 1 PortFunction: 1
\t\tPort index: 0 Firmware already flashed => SKIP.
""")
    assert (cli.files / "FWtrace.out").read_text() == "Downloaded blade/fm10102-4.6.142.10.ufi to 00:00:c9:a1:00:01\n"


# What is written.


@pytest.mark.parametrize("words, calls", [
    pytest.param(FLASH_BOTH, [FX_FIRMWARE, FX_BIOS, FM_FIRMWARE], id="in-the-order-of-the-flash-ports"),
    pytest.param(f"--flash {FX}", [FX_FIRMWARE, FX_BIOS] * 2, id="again-for-each-function-but-the-flash-port"),
])
def test_downloads(cli, words, calls):
    cli.edit(CONDITIONS, *FCOE_IMAGES)
    expect(cli.real(f"--silent {words}"), 0)
    assert downloads(cli) == calls


def test_all_four_ids_choose_the_record_even_if_two_are_selected(cli):
    cli.edit(CONDITIONS, ("11C1", "11C3"))
    expect(cli.real(f"--silent {FLASH_BOTH}"), 0)
    assert downloads(cli) == [FX_FIRMWARE, FX_BIOS]


def test_port_without_a_record_counts_as_found(cli):
    cli.write(CONDITIONS, "# none")
    expect(cli.real(f"--silent {FLASH_FM}"), 0)
    assert downloads(cli) == []


@pytest.mark.parametrize("call, calls", [("download1", [FX_FIRMWARE]), ("download2", [FX_FIRMWARE, FX_BIOS])])
def test_failed_download_ends_the_run(cli, call, calls):
    cli.on(call, "exit 7")
    expect(cli.real(FLASH_BOTH), 10, "...\n\t\tFail, flash command returned code 1792.\n")
    assert downloads(cli) == calls


@pytest.mark.parametrize("image, calls", [
    pytest.param("CNA-10102-FX/*.ufi", [], id="firmware"),
    pytest.param("CNA-10102-FX/*.grp", [], id="bios"),
    pytest.param("fm*", [FX_FIRMWARE, FX_BIOS], id="of-the-second-adapter"),
])
def test_missing_image_is_found_out_before_its_adapter_is_written(cli, image, calls):
    cli.remove(image)
    expect(cli.real(f"--silent {FLASH_BOTH}"), 20)
    assert downloads(cli) == calls


# What the shell would not read as one word is quoted, and arrives as it was.


def test_quoted_names_of_images(cli):
    images = cli.files / "it's $(FX)"
    (cli.files / "CNA-10102-FX").rename(images)
    (images / "fx-4.6.142.10.ufi").rename(images / ";a b.ufi")
    cli.edit(LIST, ("CNA-10102-FX", images.name))
    expect(cli.real(f"--silent {FLASH_FX}"), 0)
    assert downloads(cli) == [FX_FIRMWARE.replace("CNA-10102-FX/fx-4.6.142.10", "it's $(FX)/;a b"),
                              FX_BIOS.replace("CNA-10102-FX", "it's $(FX)")]


# What is told.


def test_both_images_from_the_directory_of_the_model(blade):
    expect(blade.simulated(f"-v 3 {FLASH_FX}"), 0, """\
...
\tFirmware path: blade/CNA-10102-FX
...
\t\tLook for BIOS file: *.grp
...
\t\t\tBIOS file found: blade/CNA-10102-FX/fx-bios-4.6.141.grp

\tNow start flashing the BIOS.
\t\tFlash command is: *
\t\t*/hbacmd download 00:00:c9:b2:00:01 *grp >> blade/CNA-10102-FX//FWtrace.out
...
\t\tOverallFlashBladeEngine returned: 0\x20
""")


@pytest.mark.parametrize("call, action, status, text", [
    pytest.param("targetmapping5", "rm hbacmd", 21,
                 "Error: Flash command ./hbacmd is not available: No such file or directory\n", id="no-cli"),
    pytest.param("targetmapping5", "mv blade old", 20,
                 "\t\tFirmware directory is not available: blade/\n", id="no-directory"),
    pytest.param("download1", "rm blade/CNA-10102-FX/*.grp", 0,
                 "\t\t\tBIOS file is not available: *.grp\n\n\n...", id="image-goes-after-the-look"),
])
def test_what_is_needed_goes_while_the_tool_runs(cli, call, action, status, text):
    cli.on(call, action)
    expect(cli.real(FLASH_FX), status, f"...\n{text}")


def test_file_in_the_place_of_the_images_directory(blade):
    blade.remove("CNA-10102-FX/*")
    (blade.files / "CNA-10102-FX").rmdir()
    blade.write("CNA-10102-FX")
    expect(blade.simulated(FLASH_FX), 20, "...\nError: Firmware directory is not available: blade/CNA-10102-FX/\n")


@pytest.mark.parametrize("model", ["../blade", "..", "."])
def test_model_never_leads_out_of_the_directory(blade, model):
    blade.edit(LIST, ("CNA-10102-FX", model))
    expect(blade.simulated(FLASH_FX), 20, f"...\n*not available: blade/{model}\n\n\tFirmware path: blade/\n...")


def test_adapter_without_a_model(blade):
    blade.edit(LIST, ("CNA-10102-FM", ""))
    expect(blade.simulated(FLASH_FM), 0, "...\n\t\tPort index: 0.\n\n\tFirmware path: blade/\n...")


def test_port_without_a_serial_number_is_told(blade):
    blade.edit(LIST, ("VM2.*", "n/a"))
    expect(blade.simulated(FLASH_FX), 12, "...\nSystem:\n\tFound an adequate installed controller-device:\n"
           "\t\tVendor:*SerialNumber: n/a*\n"
           "\t\tPort index: 0; Ignore this port due to missing serial number  => SKIP.\n...")


# The image is named by a leading part or by an extension, and is never a hidden file.


@pytest.mark.parametrize("pattern, files, found", [
    pytest.param("*.grp", ["x.grpx"], "x.grpx", id="extension"),
    pytest.param("*.grp", ["a.GRP", "b.gr", ".c.grp", "grp"], None, id="no-such-extension"),
    pytest.param("AB", ["aAB", ".AB", "A", "AB1"], "AB1", id="leading-part"),
    pytest.param(".AB", [".AB"], None, id="hidden"),
    pytest.param("", ["AB"], None, id="empty"),
    pytest.param(78 * "0" + "1", [78 * "0" + "2"], None, id="longest"),
])
def test_image_search(blade, pattern, files, found):
    blade.remove("CNA-10102-FX/*")
    blade.remove("*.ufi")
    for name in files:
        blade.write(f"CNA-10102-FX/{name}")
    blade.edit(CONDITIONS, (r"\*\.ufi .*\*\.grp", f"{pattern} | {pattern} "))
    result = blade.simulated(FLASH_FX)
    if found:
        expect(result, 0, f"...\n\t\tFound BIOS- or firmware-image: blade/CNA-10102-FX/{found} '{pattern}'\n...")
    else:
        expect(result, 20, f"...\n\tNo BIOS- or firmware-image was found in {pattern}!")


# What wants to break the run off: a download ends, and its result is told, before the tool ends, ahead of the next one.


def flash_with_its_pid_in_tool(cli):
    return cli.shell(f"export tool=$$; exec {REAL} {FLASH_FX}")


@pytest.mark.parametrize("action", [
    pytest.param("kill -s INT -- -$tool $PPID $$; kill -s TERM $$", id="to-all"),
    # A download is out of the terminal's reach, even when the CLI has handlers of its own.
    pytest.param("""env --default-signal=INT sh -c 'trap "exit 9" INT; kill -s INT -- -$tool'""",
                 id="to-a-handler"),
])
def test_ctrl_c_waits_for_the_download(cli, action):
    cli.on("download1", f"{action}; echo finished >>cli/calls.log")
    expect(flash_with_its_pid_in_tool(cli), -signal.SIGINT, "...\n\t\tSuccess, flash command returned code 0.\n")
    assert cli.calls[-1] == "finished"


def test_signal_breaks_off_the_inventory(cli):
    cli.on("hbaattributes2", "kill -s INT $tool")
    expect(flash_with_its_pid_in_tool(cli), -signal.SIGINT)
    assert len(cli.calls) == 3


def test_reader_who_goes_does_not_break_off_a_download(cli):
    cli.on("download1", "echo progress >&2 || :; echo finished >>cli/calls.log")
    flash = cli.start(CNATOOL_STANDIN, f"--conpath blade {FLASH_FX}")
    flash.stdout.close()
    assert flash.wait(60) == 0
    assert cli.calls[-3:] == [FX_FIRMWARE, "finished", FX_BIOS]
