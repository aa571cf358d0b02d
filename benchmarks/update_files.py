"""Update files for the measurements: Intel hex text of any number of records of any size."""

import random

BANK = 0x10000  # bytes that the 16 bits of a record's address reach


def record(address, kind, data):
    """One record without its line end; the checksum brings the sum of all bytes to 0."""
    body = bytes([len(data)]) + address.to_bytes(2, "big") + bytes([kind]) + data
    return ":" + (body + bytes([-sum(body) % 256])).hex().upper()


def end_record():
    return record(0, 1, b"")


class Contents:
    """The data bytes of a file, always the same ones. None is large: the program refuses a file in
    which the bytes of one line add up to more than 32767."""

    def __init__(self):
        self.random = random.Random(1)

    def take(self, size):
        return bytes(self.random.choices(range(200), k=size))


def memory_file(size, record_size):
    """The lines of a file that fills memory from address 0 on with `size` bytes."""
    contents = Contents()
    return [record(address, 0, contents.take(min(record_size, size - address)))
            for address in range(0, size, record_size)] + [end_record()]


def long_file(line_count, record_size):
    """A file of exactly so many lines; a single line is a data record. Where an address passes 16
    bits, a record of type 4 says so: other programs that read these files want them right."""
    contents = Contents()
    lines = []
    address = 0
    while len(lines) < line_count:
        if address and address % BANK == 0:
            lines.append(record(0, 4, (address // BANK).to_bytes(2, "big")))
        size = min(record_size, BANK - address % BANK)
        lines.append(record(address % BANK, 0, contents.take(size)))
        address += size
    return lines[:1] if line_count == 1 else lines[:line_count - 1] + [end_record()]


def write(path, lines):
    path.write_bytes("".join(line + "\r\n" for line in lines).encode("ascii"))
    return path
