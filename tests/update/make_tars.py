#!/usr/bin/env python3
"""Writes the hostile and the well-formed archives the update tests need."""
import io
import os
import sys
import tarfile

out = sys.argv[1]


def add_file(t, name, data=b"x", **kw):
    info = tarfile.TarInfo(name)
    info.size = len(data)
    for k, v in kw.items():
        setattr(info, k, v)
    t.addfile(info, io.BytesIO(data))


def add_link(t, name, target, kind=tarfile.SYMTYPE):
    info = tarfile.TarInfo(name)
    info.type = kind
    info.linkname = target
    t.addfile(info)


def write(name, build, fmt=tarfile.GNU_FORMAT):
    with tarfile.open(os.path.join(out, name), "w", format=fmt) as t:
        build(t)


write("good.tar", lambda t: (add_file(t, "./bin/prog", b"#!/bin/sh\n"),
                             add_file(t, "./share/doc/readme", b"hi"),
                             add_link(t, "./bin/alias", "prog")))
write("long_name.tar", lambda t: add_file(t, "./share/" + "d" * 150 + "/file"))
write("pax_good.tar", lambda t: add_file(t, "./share/" + "p" * 150), fmt=tarfile.PAX_FORMAT)
write("dotdot.tar", lambda t: add_file(t, "../escape"))
write("dotdot_inner.tar", lambda t: add_file(t, "bin/../../escape"))
write("absolute.tar", lambda t: add_file(t, "/tmp/escape"))
write("symlink_abs.tar", lambda t: add_link(t, "bin/evil", "/etc/passwd"))
write("symlink_up.tar", lambda t: add_link(t, "bin/evil", "../../outside"))
write("through_link.tar", lambda t: (add_link(t, "a", "."), add_link(t, "a/b", "../x")))
write("via_link.tar", lambda t: (add_link(t, "lib", "share"), add_file(t, "lib/file")))
write("hardlink_up.tar", lambda t: add_link(t, "bin/hard", "../outside", tarfile.LNKTYPE))
write("long_dotdot.tar", lambda t: add_file(t, "./" + "d" * 120 + "/../../escape"))
write("pax_dotdot.tar", lambda t: add_file(t, "./" + "p" * 120 + "/../../../escape"), fmt=tarfile.PAX_FORMAT)


def fifo(t):
    info = tarfile.TarInfo("bin/fifo")
    info.type = tarfile.FIFOTYPE
    t.addfile(info)


write("fifo.tar", fifo)

with open(os.path.join(out, "good.tar"), "rb") as f:
    good = f.read()
with open(os.path.join(out, "truncated.tar"), "wb") as f:
    f.write(good[:700])
bad = bytearray(good)
bad[0] ^= 0x01
with open(os.path.join(out, "bad_checksum.tar"), "wb") as f:
    f.write(bytes(bad))
with open(os.path.join(out, "not_tar.tar"), "wb") as f:
    f.write(b"PK\x03\x04 this is not a tar archive" + b"\0" * 600)
