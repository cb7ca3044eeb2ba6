"""Reads a work rig archive with Python's zipfile and checks its layout: the members, their method, their
zeroed records, the document (well-formed, ending in its last '>') and the STL sizes."""
import struct
import sys
import zipfile
from xml.etree import ElementTree


def main(path):
    with zipfile.ZipFile(path) as archive:
        bad = archive.testzip()
        assert bad is None, "CRC failure in " + bad
        assert archive.comment == b"", "archive comment"
        infos = archive.infolist()
        names = [info.filename for info in infos]
        assert names[0] == "WorkRig.xml", names
        assert names[1:] == ["Meshes/Mesh_%d.stl" % n for n in range(1, len(names))], names
        for info in infos:
            assert info.compress_type == zipfile.ZIP_DEFLATED, (info.filename, info.compress_type)
            assert not info.is_dir(), info.filename
            assert info.extra == b"" and info.comment == b"", info.filename
            # minizip marks the document as text where deflate coded it; nothing else is set.
            allowed = (0, 1) if info.filename == "WorkRig.xml" else (0,)
            assert info.external_attr == 0 and info.internal_attr in allowed, info.filename
            assert info.date_time[3:] == (0, 0, 0), info.date_time
        document = archive.read("WorkRig.xml")
        assert document.startswith(b"<?xml") and document.endswith(b">"), document[-20:]
        assert ElementTree.fromstring(document).tag == "WorkRig"
        for name in names[1:]:
            stl = archive.read(name)
            assert stl[:8] == b"STL File" and stl[8:80] == b" " * 72, name
            (count,) = struct.unpack_from("<i", stl, 80)
            assert len(stl) == 84 + 50 * count, name
    print("ok", path)


if __name__ == "__main__":
    main(sys.argv[1])
