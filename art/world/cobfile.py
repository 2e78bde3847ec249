"""Writes meshes as object files in the text format that the program loads.

Two kinds: 'fixed' objects (start-up scales and turns them; file x is north, file -y is east) and
'list' objects (placed by scene1.po; file x is east, file y is north, one unit is 100).  Both end in
a mirrored world, so corners are written 0, 2, 1.
"""
import numpy as np

# key: (textured, class, colour, filter level or None)
MATERIALS = {
    "matte": (True, "matte", None, None),
    "plastic": (True, "plastic", None, None),
    "constant": (True, "constant", None, None),
    "glow": (False, "constant", (255, 211, 123), None),
    "window": (False, "constant", (255, 219, 148), None),
    "sun": (False, "constant", (255, 235, 189), None),
}


def material(key):
    """'plain:matte:12,34,56', 'veil:constant:12,34,56:2' (the same, filter level 2), 'tex:plastic:4'
    (filter level 4) or a key of the table."""
    if key in MATERIALS:
        return MATERIALS[key]
    kind, cls, arg, *level = key.split(":")
    if kind in ("plain", "veil"):
        return (False, cls, tuple(int(v) for v in arg.split(",")), int(level[0]) if level else None)
    return (True, cls, None, int(arg))


def short(v):
    s = "%.4f" % v
    s = s.rstrip("0").rstrip(".")
    return "0" if s in ("-0", "") else s


def to_file(verts, kind, scale):
    v = np.asarray(verts, float)
    if kind == "fixed":
        return np.stack([v[:, 1] / scale[0], -v[:, 0] / scale[0], v[:, 2] / scale[1]], axis=1)
    return np.stack([v[:, 0] / 100, v[:, 1] / 100, v[:, 2] / 100], axis=1)


def write(path, name, mesh, texture=None, kind="list", scale=(1000, 1000), spare=None,
          spare_first=False):
    """Scale: world units of one file unit, level and upward.  Spare: a vertex (map coordinates)
    that no face uses; it raises the radius which the sphere test reads."""
    verts = [tuple(v) for v in mesh.verts]
    shift = 0
    if spare is not None and spare_first:
        verts, shift = [spare] + verts, 1
    elif spare is not None:
        verts = verts + [spare]
    fv = to_file(verts, kind, scale)
    keys = []
    for m in mesh.mats:
        if m not in keys:
            keys.append(m)
    # Write every uv pair once.
    uvs, uv_index, corners = [], {}, []
    for f, uv in zip(mesh.faces, mesh.uvs):
        row = []
        for k in range(3):
            u, v = (0.0, 0.0) if uv is None else uv[k]
            u, v = min(1.0, max(0.0, u)), min(1.0, max(0.0, v))
            pair = (short(u), short(1 - v if kind == "fixed" else v))
            if pair not in uv_index:
                uv_index[pair] = len(uvs)
                uvs.append(pair)
            row.append((f[k] + shift, uv_index[pair]))
        corners.append((row[0], row[2], row[1]))
    # Rounding can leave a face without area; it goes.
    rounded = np.round(fv, 4)
    kept, kept_mats = [], []
    for m, row in zip(mesh.mats, corners):
        p, q, r = (rounded[k] for k, _ in row)
        if np.linalg.norm(np.cross(q - p, r - p)) > 1e-9:
            kept.append(row)
            kept_mats.append(m)
    corners = kept
    out = ["# %s: made by art/build.sh, do not edit" % name, "Name %s" % name, "center 0 0 0",
           "x axis 1 0 0", "y axis 0 1 0", "z axis 0 0 1", "Transform", "1 0 0 0", "0 1 0 0",
           "0 0 1 0", "0 0 0 1", "World Vertices %d" % len(fv)]
    out += ["%s %s %s" % (short(a), short(b), short(c)) for a, b, c in fv]
    out.append("Texture Vertices %d" % len(uvs))
    out += ["%s %s" % p for p in uvs]
    out.append("Faces %d" % len(corners))
    for m, row in zip(kept_mats, corners):
        out.append("Face verts 3 flags 0 mat %d" % keys.index(m))
        out.append("<%d,%d> <%d,%d> <%d,%d>" % (row[0] + row[1] + row[2]))
    for k, key in enumerate(keys):
        textured, cls, color, level = material(key)
        if texture is None and textured:
            raise ValueError("%s: textured faces without a texture" % name)
        rgb = (1, 1, 1) if color is None else tuple((c + 0.25) / 255 for c in color)
        out += ["mat# %d" % k, "rgb %s,%s,%s" % tuple(short(min(1, c)) for c in rgb),
                "alpha 1 ka 0.1 ks 0.1 exp 0", "Shader class: color"]
        if textured:
            out += ['Shader name: "texture map"', 'file name: string ".\\%s"' % texture]
        else:
            out += ['Shader name: "plain color"']
        out.append("Shader class: transparency")
        if level is None:
            out.append('Shader name: "none"')
        else:
            c = (0, 36, 73, 110, 146, 182, 218, 255)[level]
            out += ['Shader name: "filter"', "colour: color (%d, %d, %d)" % (c, c, c)]
        out += ["Shader class: reflectance", 'Shader name: "%s"' % cls]
    path.write_bytes(("\n".join(out) + "\n").encode("ascii"))
    return keys
