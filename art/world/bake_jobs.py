"""Writes the meshes and the list of bakes for bake.py; leaves out what the cache already holds.

Usage: bake_jobs.py CACHE_FOLDER
"""
import hashlib
import json
import pathlib
import sys

import numpy as np

import cobfile
import island
import layout
import models
from make import MODELS, PAINTED

SEA = (112, 132, 142)
# name: (picture size, floor, wet, feet darker)
LOOK = {
    "gate": (512, -5, True, True), "tower": (512, 0, False, True),
    "causeway": (256, -5, True, False), "causeway-lit": (256, -5, True, False),
     "parasol-pole": (256, 0, False, False),
    "viaduct": (128, -5, True, False), "pavilion": (128, 0, False, True),
    "armillary": (128, 0, False, True), "basin": (128, 0, False, False),
    "hour-stone": (128, 0, False, True), "lamp": (128, 0, False, False),
    "stand": (128, 0, False, False), "pine": (256, 0, False, True), "islet": (128, -36, False, False),
    "reef": (256, 20, True, False), "spire": (128, 30, True, False),
    "boat": (256, 14, False, False), "lantern-ring": (256, 0, False, False),
}
SAMPLES = 40
GLOW = {"causeway-lit": 60.0}     # strength of lights in a bake; all others 2.5


def save_mesh(path, mesh, uvs=False):
    textured = np.array([cobfile.material(m)[0] for m in mesh.mats])
    data = dict(verts=np.array(mesh.verts), faces=np.array(mesh.faces),
                colors=np.array(mesh.colors), textured=textured)
    if uvs:
        data["uvs"] = np.array(mesh.uvs)
    np.savez(path, **data)

    def digest(keys):
        h = hashlib.sha256()
        for k in keys:
            h.update(np.ascontiguousarray(data[k]).tobytes())
        return h.hexdigest()

    return digest(sorted(data)), digest(["faces", "verts"])


def main():
    cache = pathlib.Path(sys.argv[1]).resolve()
    (cache / "mesh").mkdir(parents=True, exist_ok=True)
    (cache / "bake").mkdir(parents=True, exist_ok=True)
    tool = hashlib.sha256((pathlib.Path(__file__).parent / "bake.py").read_bytes()).hexdigest()
    marks = cache / "marks.json"
    old = json.loads(marks.read_text()) if marks.exists() else {}
    new, objects, lights, meshes, shape = {}, [], [], {}, []
    for name, make in MODELS.items():
        path = cache / "mesh" / (name + ".npz")
        digest, form = save_mesh(path, make())
        meshes[name] = str(path)
        shape.append(form)
        if name in PAINTED:
            continue
        size, floor, wet, feet = LOOK[name]
        job = dict(name=name, mesh=str(path), out=str(cache / "bake" / (name + ".npz")), size=size,
                   floor=floor, wet=wet, feet=feet, samples=SAMPLES, angle=50,
                   gap=1.6 / size, glow=GLOW.get(name, 2.5),
                   floor_color=SEA if floor in (-36, -5, 14, 20, 30) else (206, 176, 150))
        mark = hashlib.sha256((tool + digest + json.dumps({k: v for k, v in job.items() if k not in
                                                          ("mesh", "out")},
                                                         sort_keys=True)).encode()).hexdigest()
        new[name] = mark
        if old.get(name) != mark or not pathlib.Path(job["out"]).exists():
            objects.append(job)
    rows = [(r[0], r[1:]) for r in layout.rows() if r[0] in MODELS]
    shape.append(json.dumps(rows))
    planar = []
    for i in range(3):
        for j in range(3):
            if (i, j) != (1, 1):
                x, y = island.patch_middle(i, j)
                planar.append(("isle-%d%d" % (i, j), island.patch(i, j), (x, y, 0, 0, 1),
                               island.texture_size(i, j)))
    planar.append(("dial", island.dial(), (0, 0, 0, 0, 1), 512))
    digests = []
    for name, mesh, row, size in planar:
        path = cache / "mesh" / (name + ".npz")
        digests.append(save_mesh(path, mesh, True)[0])
        meshes[name] = str(path)
        lights.append(dict(name=name, mesh=str(path), row=row, size=size, samples=16,
                           out=str(cache / "bake" / (name + ".light.npz"))))
    mark = hashlib.sha256((tool + "".join(shape + digests) + json.dumps(
        [(k["name"], k["size"], k["samples"]) for k in lights])).encode()).hexdigest()
    new["lights"] = mark
    if old.get("lights") == mark and all(pathlib.Path(k["out"]).exists() for k in lights):
        lights = []
    (cache / "jobs.json").write_text(json.dumps(dict(objects=objects, lights=lights, rows=rows,
                                                     meshes=meshes)))
    (cache / "marks.new.json").write_text(json.dumps(new, indent=1))
    print("%d objects and %d lit surfaces to bake" % (len(objects), len(lights)))


main()
