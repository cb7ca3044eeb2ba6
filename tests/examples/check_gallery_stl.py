#!/usr/bin/env python3
"""Reads every mesh tool_gallery wrote with numpy-stl, a reader that shares no code with the library: each
file must load with the triangle count of its header, and numpy-stl must find it closed.

numpy-stl's is_closed() sums the triangles' area vectors in 32-bit floats and compares the sum with an absolute
1e-4: on a tool 160 mm long the rounding of that sum alone exceeds it. So the mesh is first moved and scaled into
a unit box (coincident corners stay coincident), where a missing triangle still shows. The same sum is also taken
in 64 bits on the coordinates as stored, where a closed mesh gives zero up to rounding, in either direction.

Usage: check_gallery_stl.py OUTDIR   (the folder tool_gallery wrote; the meshes are in OUTDIR/stl)
"""
import os
import struct
import sys
import warnings

EXPECTED_FILES = 47


def main():
    if len(sys.argv) != 2:
        print(__doc__.strip())
        return 2
    try:
        # numpy-stl built for an older numpy warns on import; the warning says nothing about the meshes.
        warnings.simplefilter("ignore", FutureWarning)
        import numpy
        from stl import mesh
    except ImportError as error:
        print("FAILED: %s cannot import numpy-stl (%s): install the Debian packages python3-stl and "
              "python3-numpy" % (sys.executable, error))
        return 1

    folder = os.path.join(sys.argv[1], "stl")
    names = sorted(n for n in os.listdir(folder) if n.endswith(".stl")) if os.path.isdir(folder) else []
    failures = []
    if len(names) != EXPECTED_FILES:
        failures.append("%d STL files in %s, expected %d" % (len(names), folder, EXPECTED_FILES))
    for name in names:
        path = os.path.join(folder, name)
        with open(path, "rb") as stream:
            header = stream.read(84)
        if len(header) < 84:
            failures.append("%s: shorter than a binary STL header" % name)
            continue
        count = struct.unpack("<I", header[80:84])[0]
        loaded = mesh.Mesh.from_file(path)
        if len(loaded.vectors) != count:
            failures.append("%s: %d triangles loaded, header says %d" % (name, len(loaded.vectors), count))
        if count == 0:
            failures.append("%s: no triangles" % name)
            continue
        v0, v1, v2 = (loaded.vectors[:, k].astype(numpy.float64) for k in range(3))
        areas = numpy.cross(v1 - v0, v2 - v0)
        imbalance = numpy.abs(areas.sum(axis=0)).max() / numpy.linalg.norm(areas, axis=1).sum()
        lower, upper = loaded.vectors.min(axis=(0, 1)), loaded.vectors.max(axis=(0, 1))
        loaded.vectors -= (lower + upper) / 2
        loaded.vectors /= (upper - lower).max()
        loaded.update_normals()
        if not loaded.is_closed():
            failures.append("%s: numpy-stl finds the mesh open (sum of area vectors in a unit box %s)"
                            % (name, loaded.normals.sum(axis=0)))
        elif not imbalance < 1e-9:
            failures.append("%s: the area vectors do not cancel (%.3g of the total area)" % (name, imbalance))
        else:
            print("%-36s %6d triangles, closed" % (name, count))
    for failure in failures:
        print("FAILED: " + failure)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
