// The records of the inventory: one per adapter port, with its attributes and
// the storage that it sees.
#pragma once

#include "run/base/record_list.h"
#include "run/base/text.h"

#include <cstdint>
#include <cstring>
#include <span>

// The values of one port's attributes report. Text fields keep the reported text, cut to their
// capacity; a label that never appeared leaves its field empty.
struct hba_attributes_entry {
    char host_name[64];
    char manufacturer[64];
    char serial_number[24];
    char model[64];
    char model_desc[256];
    char node_wwn[24];
    char node_symname[256];
    char hw_version[16];
    char fw_version[16];
    char vendor_spec_id[5];
    char number_of_ports[4];
    char driver_name[32];
    char device_id[5];
    char hba_type[64];
    char operational_fw[16];
    char ieee_address[18];
    char pxe_boot[10];
    char driver_version[16];
    char board_temperature[16];
    char function_type[16];
    char subdevice_id[5];
    char port_number[16];
    char pci_bus_number[5];
    char pci_func_number[5];
    char subvendor_id[5];
    char firmware_status[16];
    char service_processor_fw_name[16];
    char ulp_fw_name[16];
    char ipl_filename[16];
    char ncsi_version[16];
    char startup_boot_code_version[16];
    char fcoe_universal_version[16];
    char fcoe_x86_bios_version[16];
    char fcoe_efi_version[16];
    char fcoe_fcode_version[16];
    char uefi_bios_version[16];
    char uefi_nic_version[16];
    char uefi_fcode_version[16];
    char uefi_iscsi_version[16];
    char pci_express_link_speed[16];
    char pci_express_bus_width[10];

    // The port's PCI identity, read from the hexadecimal texts above; all ones
    // when a text is no number.
    std::uint32_t vendor_spec_id_val;
    std::uint32_t device_id_val;
    std::uint32_t subvendor_id_val;
    std::uint32_t subdevice_id_val;
};

// The storage that one port's target-mapping report names. With several LUNs each field holds the
// value of the last one.
struct target_mapping_entry {
    char fcp_lun[24];
    char scsi_os_lun[5];
    char lun_device_name[128];
    char vendor_id[64];
    char product_id[64];
    char product_version[16];
    char type[5];
    char scsi_capacity[12];
    char block_size[12];
};

// One adapter port as the vendor CLI lists it.
struct hba_info {
    char port_wwn[24]; // names Fibre Channel and FCoE ports on the CLI
    char node_wwn[24];
    char fabric_name[24];
    char permanent_mac[18]; // names every other port, and the adapter to flash
    char current_mac[18];
    char flags[10];
    char host_name[64];
    char mfg[64];
    char serial_no[24];      // the adapter; "n/a..." when it has none
    char port_number[6];     // on the adapter, decimal
    std::int32_t port_index; // in no report: 0
    char mode[16];
    char pci_bus_number[4];
    char pci_function[4]; // decimal
    char port_type[16];   // "FC", "FCoE", "iSCSI" or another protocol
    char model[64];

    hba_attributes_entry* attributes;     // null: no attributes report
    target_mapping_entry* target_mapping; // null: the port sees no storage

    hba_info* flash_port; // the port through which the adapter is flashed
    hba_info* next_port;  // FCoE: the next port of the chain from the flash port

    std::uint8_t flash_done; // the flash engine has handled this port
    std::uint8_t check_done; // the consistency check has handled this port

    // What the commands for the port ended with: raw wait statuses, -1 for one that was not run.
    std::int32_t attributes_status;
    std::int32_t mapping_status;

    std::uint8_t mapping_reported; // its target-mapping report was read, and its title names it
};

// Every port, null-terminated; null as long as no port was found.
extern hba_info** p_hba_info_list;

inline std::span<hba_info*> all_ports() {
    return records(p_hba_info_list);
}

// Makes a zero-filled port at the end of p_hba_info_list; null when memory is exhausted.
hba_info* get_new_hba_info_entry();

// Makes a zero-filled record, which the caller links to its port; null when memory is exhausted.
hba_attributes_entry* get_new_hba_attributes_entry();
target_mapping_entry* get_new_target_mapping_entry();

// Releases a port with the records that it owns; the caller takes it off the list.
void release_hba_info_entry(hba_info* port);

// Releases every port and the list.
void release_hba_info_list();

inline bool serial_missing(const hba_info& port) {
    return begins_with(port.serial_no, "n/a");
}

// Whether a port's type is exactly `type`.
inline bool has_type(const hba_info& port, const char* type) {
    return std::strcmp(port.port_type, type) == 0;
}

// Whether a port's type begins with "FCoE".
inline bool is_fcoe(const hba_info& port) {
    return begins_with(port.port_type, "FCoE");
}

// Whether the port is an FCoE or a plain Fibre Channel port. The CLI knows such a port by its
// world-wide name and reports its storage; any other it knows by its MAC address.
inline bool is_fcoe_or_fc(const hba_info& port) {
    return is_fcoe(port) || has_type(port, "FC");
}
