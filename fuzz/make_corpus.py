#!/usr/bin/env python3
"""Writes the seed corpus of every fuzz target into DIR/<target>/: small real
files and broken ones (sizes that wrap, cut files, huge header fields).
Regression inputs committed under fuzz/corpus/<target>/ are added by run.sh."""
import json
import os
import struct
import sys


def be(v, n):
    return v.to_bytes(n, "big")


def le(v, n):
    return v.to_bytes(n, "little")


def id3(title=b"Seed"):
    frame = b"TIT2" + be(len(title) + 1, 4) + b"\0\0" + b"\3" + title
    body = frame
    size = len(body)
    syncsafe = bytes([(size >> 21) & 0x7F, (size >> 14) & 0x7F, (size >> 7) & 0x7F, size & 0x7F])
    return b"ID3\4\0\0" + syncsafe + body


def dsf(channels=2, block=16, samples=None, blocks=2, meta=True, fmt_overrides=None, data_size=None, cut=None):
    if samples is None:
        samples = block * blocks * 8 - 24
    data = bytes((i * 37 + c) & 0xFF for c in range(channels) for i in range(block)) * blocks
    fields = {"version": 1, "format": 0, "type": 2, "channels": channels, "rate": 2822400,
              "bits": 1, "samples": samples, "block": block}
    fields.update(fmt_overrides or {})
    fmt = (b"fmt " + le(52, 8) + le(fields["version"], 4) + le(fields["format"], 4) + le(fields["type"], 4)
           + le(fields["channels"], 4) + le(fields["rate"], 4) + le(fields["bits"], 4)
           + le(fields["samples"], 8) + le(fields["block"], 4) + le(0, 4))
    dchunk = b"data" + le(12 + len(data) if data_size is None else data_size, 8) + data
    tag = id3() if meta else b""
    total = 28 + len(fmt) + len(dchunk) + len(tag)
    head = b"DSD " + le(28, 8) + le(total, 8) + le(28 + len(fmt) + len(dchunk) if meta else 0, 8)
    out = head + fmt + dchunk + tag
    return out[:cut] if cut else out


def chunk(cid, body, size=None):
    out = cid + be(len(body) if size is None else size, 8) + body
    return out + (b"\0" if len(body) % 2 else b"")


def dff(channels=2, nbytes=64, sizes=None, cmpr=b"DSD ", cut=None, trailing_id3=True):
    sizes = sizes or {}
    ids = [b"SLFT", b"SRGT"] if channels == 2 else [b"MLFT", b"MRGT", b"C   ", b"LFE ", b"LS  ", b"RS  "][:channels]
    prop = b"SND " + chunk(b"FS  ", be(2822400, 4), sizes.get("FS")) \
        + chunk(b"CHNL", be(channels, 2) + b"".join(ids), sizes.get("CHNL")) \
        + chunk(b"CMPR", cmpr + bytes([14]) + b"not compressed" + b"\0", sizes.get("CMPR"))
    comt = be(1, 2) + be(2026, 2) + bytes([1, 2, 3, 4]) + be(0, 2) + be(0, 2) + be(5, 4) + b"hello\0"
    diin = chunk(b"DIAR", be(3, 4) + b"abc", sizes.get("DIAR")) + chunk(b"DITI", be(4, 4) + b"song", sizes.get("DITI"))
    sound = bytes((i * 13) & 0xFF for i in range(nbytes * channels))
    body = b"DSD " + chunk(b"FVER", be(0x01050000, 4), sizes.get("FVER")) \
        + chunk(b"PROP", prop, sizes.get("PROP")) + chunk(b"COMT", comt, sizes.get("COMT")) \
        + chunk(b"DIIN", diin, sizes.get("DIIN")) + chunk(b"DSD ", sound, sizes.get("DSD"))
    if trailing_id3:
        body += chunk(b"ID3 ", id3(), sizes.get("ID3"))
    out = b"FRM8" + be(len(body), 8) + body
    return out[:cut] if cut else out


WRAP = 0xFFFFFFFFFFFFFFF4


def corpus():
    c = {"dsf_reader": {}, "dff_reader": {}, "engine_cli": {}, "preset_json": {}, "spectral_options": {}}
    d = c["dsf_reader"]
    d["stereo"] = dsf()
    d["mono-no-tag"] = dsf(channels=1, meta=False)
    d["six"] = dsf(channels=6, fmt_overrides={"type": 7})
    d["block-4096"] = dsf(block=4096, blocks=1, samples=800)
    d["huge-block"] = dsf(fmt_overrides={"block": 0x7FFFFFFF})
    d["huge-block-8ch"] = dsf(channels=8, fmt_overrides={"block": 0xFFFFFFFF})
    d["cut-data"] = dsf(blocks=4, cut=120)
    d["data-size-wraps"] = dsf(data_size=4)
    d["samples-huge"] = dsf(fmt_overrides={"samples": 0xFFFFFFFFFFFFFFFF})
    d["header-only"] = dsf()[:92]
    d["bad-meta-pointer"] = dsf()[:20] + le(0xFFFFFFFFFFFFFF00, 8) + dsf()[28:]
    f = c["dff_reader"]
    f["stereo"] = dff()
    f["six"] = dff(channels=6)
    f["odd-text"] = dff(nbytes=63)
    for name in ["DSD", "FVER", "PROP", "FS", "CHNL", "CMPR", "ID3", "COMT", "DIIN", "DIAR"]:
        f["wrap-" + name.lower()] = dff(sizes={name: WRAP})
    f["dsd-beyond-file"] = dff(sizes={"DSD": 4096})
    f["cut-mid-data"] = dff(nbytes=512, cut=300, trailing_id3=False)
    f["dst"] = dff(cmpr=b"DST ")
    f["form-only"] = b"FRM8" + be(4, 8) + b"DSD "
    cli = c["engine_cli"]
    for i, args in enumerate([
        ["-i", "in.wav", "out.dsf"],
        ["-i", "in.wav", "--oversampling", "128", "--order", "7", "--absdb", "-3.5", "out.dff"],
        ["--reverse", "-i", "in.dsf", "--bit", "24", "--sampling", "176400", "--lowpass", "40000", "out.wav"],
        ["--dxd", "-i", "in.flac", "--dxd-samplerate", "352800", "--format", "flac", "out.flac"],
        ["-i", "a.wav", "--taps", "4096", "--passband-cutoff", "20000", "--stopband-cutoff", "24000",
         "--algorithm", "remez", "--maxiterations", "40", "--griddensity", "16", "o.dsf"],
        ["-i", "a.wav", "--window-type", "kaiser", "--beta", "9.5", "--cifb", "5", "--artist", "X",
         "--title", "Y", "--track", "3", "--log-file", "l.txt", "--log", "all", "--gui", "o.dsf"],
        ["--help"], ["--version"], ["-i"], ["--mash", "2-1", "--sos-ef", "-i", "x", "y.dsf"],
        ["-i", "x.wav", "--abs", "0.5", "--abs", "1e400", "--taps", "-1", "o.dsf"],
        ["-i", "x.wav", "--dehum", "--dehum-q", "10", "--decrackle", "--decrackle-threshold", "4", "--expand",
         "--expand-threshold", "-55", "--expand-ratio", "2", "--expand-knee", "6", "--expand-attack", "5",
         "--expand-release", "100", "o.dsf"],
        ["-i", "x.wav", "--master", "--mastering-preset", "jazz", "--music-type", "3", "o.dff"],
    ]):
        cli["args-%02d" % i] = b"\0".join(a.encode() for a in args)
    for i, args in enumerate([
        ["--denoise", "deep", "--keep-harmonics", "on"], ["--wiener", "--wiener-floor", "-20.000000"],
        ["--wiener-frame", "64", "--wiener"], ["--noise-reduce", "12dB"], ["--noise-reduce", "light"],
        ["--denoise", "light", "--wiener"], ["--noise-reduce"], ["--wiener-floor", "1e400"],
    ]):
        c["spectral_options"]["args-%02d" % i] = b"\0".join(a.encode() for a in args)
    p = c["preset_json"]
    p["full"] = json.dumps({"oversampling": 128, "taps": 4096, "passband_cutoff": 20000.0, "use_dst": False,
                            "artist": "A", "eq_bands": [{"centerFreq": 1000, "gainDB": 3, "bandwidth": 1,
                                                         "bwType": 0}],
                            "advanced": {"order": 7}, "keep_harmonics": True}, indent=4).encode()
    p["wrong-types"] = json.dumps({"oversampling": "x", "taps": 1e300, "eq_bands": {"a": 1},
                                   "advanced": [1, 2], "artist": 5}).encode()
    p["empty"] = b"{}"
    return c


def main():
    root = sys.argv[1] if len(sys.argv) > 1 else "corpus"
    for target, files in corpus().items():
        folder = os.path.join(root, target)
        os.makedirs(folder, exist_ok=True)
        for name, data in files.items():
            with open(os.path.join(folder, name), "wb") as fh:
                fh.write(data)


if __name__ == "__main__":
    main()
