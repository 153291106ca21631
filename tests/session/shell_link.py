"""Shortcuts as other programs write them: the shell link format, [MS-SHLLINK], with no more in it than needed."""

import struct

HAS_LINK_INFO, HAS_WORKING_FOLDER, IS_UNICODE = 0x2, 0x10, 0x80
HEADER_SIZE, INFO_HEADER_SIZE = 0x4C, 0x24
CLASS = bytes.fromhex("0114020000000000c000000000000046")


def shell_link(target, working_folder=""):
    """The bytes of a shortcut to a local path ("Z:\\home\\ana\\Report.odt")."""
    flags = HAS_LINK_INFO | IS_UNICODE | (HAS_WORKING_FOLDER if working_folder else 0)
    header = struct.pack("<I16sII28xii12x", HEADER_SIZE, CLASS, flags, 0x20, 0, 1)
    text = struct.pack("<H", len(working_folder)) + working_folder.encode("utf-16-le") if working_folder else b""
    return header + _link_info(target) + text + bytes(4)


def program_form(path):
    """A native path as the program spells it."""
    return "Z:" + str(path).replace("\\", "\uf05c").replace('"', "\uf022").replace("/", "\\")


def _link_info(target):
    volume = struct.pack("<IIII", 0x11, 3, 0, 0x10) + b"\0\0"  # ends on an even byte, as the wide text must start
    wide = target.encode("utf-16-le") + b"\0\0"
    narrow = target.encode("cp1252", "replace") + b"\0"
    narrow_at = INFO_HEADER_SIZE + len(volume)
    suffix_at = narrow_at + len(narrow)
    wide_at = suffix_at + 1 + (suffix_at + 1) % 2
    size = wide_at + len(wide) + 2
    info = struct.pack(
        "<IIIIIIIII", size, INFO_HEADER_SIZE, 1, INFO_HEADER_SIZE, narrow_at, 0, suffix_at, wide_at, wide_at + len(wide)
    )
    return info + volume + narrow + bytes(wide_at - suffix_at) + wide + b"\0\0"
