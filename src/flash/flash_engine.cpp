#include "flash/flash_engine.h"

#include "flash/image_search.h"
#include "inventory/vendor_cli.h"
#include "run/base/diagnostics.h"
#include "run/base/return_codes.h"
#include "run/base/settings.h"
#include "run/base/shell_command.h"
#include "run/base/signal_hold.h"

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <string>

namespace {

// What the messages call the two images of an adapter.
struct ImageKind {
    const char* name;
    const char* title; // the name where it begins a message
};

constexpr ImageKind firmware = {"firmware", "Firmware"};
constexpr ImageKind bios = {"BIOS", "BIOS"};

// Shows where the images are looked for.
void print_image_directory(const hba_info& port, const std::string& directory) {
    const std::string own = std::string(pHBAFirmwarePath) + port.model;
    const bool common = directory == pHBAFirmwarePath;
    if (common && directory != own) {
        message(1, "\t\tFirmware directory is not available: %s\n\n", own.c_str());
    }
    message(1, "\tFirmware path: %s\n", common ? directory.c_str() : own.c_str());
}

// Makes sure that an image is there before anything is written.
std::int32_t look_for_image(const ImageKind& kind, const std::string& directory,
                            const char* pattern) {
    message(1, "\t\tLook for %s file: %s\n", kind.name, pattern);
    char image[path_capacity];
    if (FindFlashImage(directory.c_str(), image, pattern) == RET_OK) {
        message(1, "\t\tFound BIOS- or firmware-image: %s '%s'\n", image, pattern);
        return RET_OK;
    }
    if (!path_exists(directory)) {
        message(1, "Error: Firmware directory is not available: %s\n\n", directory.c_str());
    } else {
        message(1, "\tNo BIOS- or firmware-image was found in %s!\n", pattern);
    }
    return RET_FW_NOT_AVAILABLE;
}

std::int32_t run_flash_command(const ShellCommand& command) {
    // A half-written image bricks the adapter: signals are deferred until the result of the
    // command has been reported.
    const SignalHold hold;
    const std::int32_t status = run_command(command, &hold);
    if (status == 0) {
        message(1, "\t\tSuccess, flash command returned code %d.\n\n", status);
    } else {
        message(1, "\t\tFail, flash command returned code %d.\n\n", status);
    }
    return status;
}

// Writes one image through the flash port. An image that has vanished since it
// was looked for is only reported.
std::int32_t flash_image(const ImageKind& kind, const hba_info& flash_port,
                         const std::string& directory, const char* pattern) {
    char image[path_capacity];
    if (FindFlashImage(directory.c_str(), image, pattern) != RET_OK) {
        message(1, "\t\t\t%s file is not available: %s\n\n", kind.title, pattern);
        return RET_OK;
    }
    if (!hbacmd_available()) {
        message(1, "Error: Flash command %s is not available: %s\n\n", hbacmd_path,
                std::strerror(errno));
        return RET_SCLI_NOT_INSTALLED;
    }
    ShellCommand command = hbacmd_command("\n\t\t", {"download", flash_port.permanent_mac, image},
                                          Output::appended, directory + "/FWtrace.out", "\n");
    command.shown_at_terminal =
        std::string("download of the ") + kind.name + ", Ctrl-C takes effect at its end";
    message(1, "\t\t\t%s file found: %s\n\n", kind.title, image);
    message(1, "\tNow start flashing the %s.\n\t\tFlash command is: %s\n", kind.name,
            command.text.c_str());
    return run_flash_command(command) == 0 ? RET_OK : RET_FLASH_ERROR;
}

std::int32_t flash_adapter(const hba_info& port, const fc_config_file_entry& record) {
    if (!path_exists(pHBAFirmwarePath)) {
        message(1, "\t\tFirmware directory is not available: %s\n\n", pHBAFirmwarePath);
        return RET_FW_NOT_AVAILABLE;
    }
    const std::string directory = image_directory(port);
    print_image_directory(port, directory);
    const bool with_bios = record.bios_image[0] != '\0';
    std::int32_t result = look_for_image(firmware, directory, record.firmware_image);
    if (result == RET_OK && with_bios) {
        result = look_for_image(bios, directory, record.bios_image);
    }
    if (result == RET_OK) {
        result = flash_image(firmware, *port.flash_port, directory, record.firmware_image);
    }
    if (result == RET_OK && with_bios) {
        result = flash_image(bios, *port.flash_port, directory, record.bios_image);
    }
    return result;
}

} // namespace

void print_controller_port(const hba_info& port) {
    message(1,
            "\t\tVendor: %s, Model: %s SerialNumber: %s PortType: %s PortNumber: %s "
            "PortFunction: %s\n",
            port.mfg, port.model, port.serial_no, port.port_type, port.port_number,
            port.pci_function);
}

std::int32_t FlashBladeEngine(hba_info& port, const fc_config_file_entry& record,
                              global_ctrl_flags& flags) {
    flags.MatchingCtrlModelInstalled = 1;
    const bool already_flashed = port.flash_port->flash_done != 0;
    if (already_flashed) {
        message(1, "\t%s\n", divider);
    }
    message(1, "\tInstalled controller-device:\n");
    print_controller_port(port);
    if (already_flashed) {
        message(1, "\t\tPort index: %d Firmware already flashed => SKIP.\n\n", port.port_index);
        port.flash_done = 1;
        return RET_OK;
    }
    message(1, "\t\tPort index: %d.\n\n", port.port_index);
    if (const std::int32_t result = flash_adapter(port, record); result != RET_OK) {
        return result;
    }
    port.flash_done = 1;
    message(1, "\n");
    return RET_OK;
}
