"""Meshes and the shapes they are built from.

Map coordinates everywhere: X east (world x), Y north (world z), Z up (world y), right-handed,
in world units.  A face's corners run counter-clockwise seen from its visible side; the writer of
object files turns that into the renderer's winding.  Colours are sRGB bytes, one a face; uv has
v = 0 at the bottom of the picture.
"""
import math

import numpy as np


class Mesh:
    """Vertices, triangles, and per triangle: material key, albedo and (where painted) uv."""

    def __init__(self):
        self.verts = []     # (x, y, z)
        self.faces = []     # (a, b, c)
        self.mats = []      # material key of each face, see cobfile.MATERIALS
        self.colors = []    # albedo of each face, sRGB bytes
        self.uvs = []       # three (u, v) of each face, or None while unbaked

    def add(self, verts, faces, color, mat="matte", uvs=None):
        base = len(self.verts)
        self.verts += [tuple(map(float, v)) for v in verts]
        for k, f in enumerate(faces):
            self.faces.append((f[0] + base, f[1] + base, f[2] + base))
            self.mats.append(mat)
            self.colors.append(color[k] if isinstance(color, list) else color)
            self.uvs.append(uvs[k] if uvs else None)
        return base

    def join(self, other, move=(0, 0, 0), turn=0.0, size=1.0):
        """Adds a copy of another mesh, scaled, turned about Z (degrees) and moved."""
        base = len(self.verts)
        c, s = math.cos(math.radians(turn)), math.sin(math.radians(turn))
        sx, sy, sz = (size, size, size) if not isinstance(size, tuple) else size
        for x, y, z in other.verts:
            x, y, z = x * sx, y * sy, z * sz
            self.verts.append((c * x - s * y + move[0], s * x + c * y + move[1], z + move[2]))
        for f, m, col, uv in zip(other.faces, other.mats, other.colors, other.uvs):
            self.faces.append((f[0] + base, f[1] + base, f[2] + base))
            self.mats.append(m)
            self.colors.append(col)
            self.uvs.append(uv)
        return self

    def bend(self, fn):
        """Moves every vertex by fn(x, y, z)."""
        self.verts = [tuple(map(float, fn(*v))) for v in self.verts]
        return self

    def keep(self, wanted):
        """Leaves out the faces that wanted, one truth a face, does not want."""
        for part in ("faces", "mats", "colors", "uvs"):
            setattr(self, part, [p for p, w in zip(getattr(self, part), wanted) if w])

    def reach(self):
        v = np.array(self.verts)
        return float(np.sqrt((v * v).sum(axis=1)).max())


def shade(color, k):
    return tuple(max(0, min(255, int(round(c * k)))) for c in color)


def mix(a, b, t):
    return tuple(int(round(x + (y - x) * t)) for x, y in zip(a, b))


def grid_faces(m, n, wrap_i=False, wrap_j=False, flip=False):
    """Triangles of an m x n grid of vertices (index i * n + j); normal along di x dj."""
    out = []
    for i in range(m if wrap_i else m - 1):
        for j in range(n if wrap_j else n - 1):
            a = i * n + j
            b = ((i + 1) % m) * n + j
            c = ((i + 1) % m) * n + (j + 1) % n
            d = i * n + (j + 1) % n
            quad = [(a, b, c), (a, c, d)]
            if (i + j) & 1:
                quad = [(a, b, d), (b, c, d)]
            if flip:
                quad = [(p, r, q) for p, q, r in quad]
            out += quad
    return out


def surface(mesh, points, color, mat="matte", wrap_i=False, wrap_j=False, flip=False, uv=None):
    """A smooth grid of points[i][j]; color may be a function of (i, j) of the cell."""
    m, n = len(points), len(points[0])
    faces = grid_faces(m, n, wrap_i, wrap_j, flip)
    cols = color
    if callable(color):
        cols = []
        for i in range(m if wrap_i else m - 1):
            for j in range(n if wrap_j else n - 1):
                cols += [color(i, j)] * 2
    flat = [p for row in points for p in row]
    uvs = None
    if uv is not None:
        fl = [p for row in uv for p in row]
        uvs = [tuple(fl[k] for k in f) for f in faces]
    return mesh.add(flat, faces, cols, mat, uvs)


def lathe(mesh, profile, segs, color, mat="matte", start=0.0, hard=False):
    """Turns a profile of (radius, z), listed from bottom to top, about Z.  Hard: each band has
    its own vertices, so that smooth shading does not run over the edge."""
    bands = [profile] if not hard else [profile[k:k + 2] for k in range(len(profile) - 1)]
    for b, band in enumerate(bands):
        pts = []
        for i in range(segs):
            a = math.radians(start) + 2 * math.pi * i / segs
            pts.append([(r * math.cos(a), r * math.sin(a), z) for r, z in band])
        col = color
        if callable(color):
            col = (lambda i, j, b=b: color(i, j + b)) if hard else color
        surface(mesh, pts, col, mat, wrap_i=True)
    drop_degenerate(mesh)


def drop_degenerate(mesh):
    """Removes faces without area, which poles of lathes leave behind."""
    keep = []
    for k, (a, b, c) in enumerate(mesh.faces):
        p, q, r = (np.array(mesh.verts[t]) for t in (a, b, c))
        n = np.cross(q - p, r - p)
        if (n * n).sum() > 1e-3:
            keep.append(k)
    if len(keep) != len(mesh.faces):
        kept = set(keep)
        mesh.keep([k in kept for k in range(len(mesh.faces))])


def box(mesh, center, size, color, mat="matte", turn=0.0, taper=1.0, bottom=False, top=True):
    """A box standing on center (the middle of its foot), turned about Z; taper narrows the top."""
    sx, sy, sz = size
    c, s = math.cos(math.radians(turn)), math.sin(math.radians(turn))
    corners = []
    for z, k in ((0.0, 1.0), (sz, taper)):
        for x, y in ((-1, -1), (1, -1), (1, 1), (-1, 1)):
            px, py, pz = x * sx / 2 * k, y * sy / 2 * k, z
            corners.append((c * px - s * py + center[0], s * px + c * py + center[1],
                            pz + center[2]))
    quads = [(0, 1, 5, 4), (1, 2, 6, 5), (2, 3, 7, 6), (3, 0, 4, 7)]
    if top:
        quads.append((4, 5, 6, 7))
    if bottom:
        quads.append((3, 2, 1, 0))
    hexa(mesh, corners, color, mat, quads)


def hexa(mesh, corners, color, mat="matte", quads=None):
    """Eight corners, 0-3 the foot counter-clockwise seen from above, 4-7 above them."""
    if quads is None:
        quads = [(0, 1, 5, 4), (1, 2, 6, 5), (2, 3, 7, 6), (3, 0, 4, 7), (4, 5, 6, 7),
                 (3, 2, 1, 0)]
    for q in quads:
        mesh.add([corners[k] for k in q], [(0, 1, 2), (0, 2, 3)], color, mat)


def tube(mesh, path, radii, segs, color, mat="matte", caps=False, squash=1.0):
    """A tube along points; radii one a point."""
    path = [np.array(p, float) for p in path]
    rings = []
    up = np.array((0.0, 0.0, 1.0))
    for k, p in enumerate(path):
        d = path[min(k + 1, len(path) - 1)] - path[max(k - 1, 0)]
        d = d / np.linalg.norm(d)
        ref = up if abs(d[2]) < 0.9 else np.array((1.0, 0.0, 0.0))
        side = np.cross(d, ref)
        side /= np.linalg.norm(side)
        other = np.cross(side, d)
        ring = []
        for i in range(segs):
            a = 2 * math.pi * i / segs
            ring.append(tuple(p + radii[k] * (math.cos(a) * side + squash * math.sin(a) * other)))
        rings.append(ring)
    # side x other = -d, so the normal of dk x da points outward when flipped this way
    surface(mesh, rings, color, mat, wrap_j=True, flip=orient_tube(rings))
    if caps:
        for ring, rev in ((rings[0], False), (rings[-1], True)):
            mid = tuple(np.mean(ring, axis=0))
            n = len(ring)
            f = [(n, (i + 1) % n, i) if rev == orient_tube(rings) else (n, i, (i + 1) % n)
                 for i in range(n)]
            mesh.add(ring + [mid], f, color, mat)


def orient_tube(rings):
    """Whether the grid normal of a tube points inward and must be turned round."""
    a, b = np.array(rings[0]), np.array(rings[1])
    n = np.cross(b[0] - a[0], a[1] - a[0])
    return bool(np.dot(n, a[0] - a.mean(axis=0)) < 0)


def icosphere(level):
    """Unit sphere of triangles: vertices, faces."""
    t = (1 + 5 ** 0.5) / 2
    v = [(-1, t, 0), (1, t, 0), (-1, -t, 0), (1, -t, 0), (0, -1, t), (0, 1, t), (0, -1, -t),
         (0, 1, -t), (t, 0, -1), (t, 0, 1), (-t, 0, -1), (-t, 0, 1)]
    f = [(0, 11, 5), (0, 5, 1), (0, 1, 7), (0, 7, 10), (0, 10, 11), (1, 5, 9), (5, 11, 4),
         (11, 10, 2), (10, 7, 6), (7, 1, 8), (3, 9, 4), (3, 4, 2), (3, 2, 6), (3, 6, 8),
         (3, 8, 9), (4, 9, 5), (2, 4, 11), (6, 2, 10), (8, 6, 7), (9, 8, 1)]
    v = [tuple(np.array(p) / np.linalg.norm(p)) for p in v]
    for _ in range(level):
        cache, out = {}, []

        def middle(a, b):
            key = (min(a, b), max(a, b))
            if key not in cache:
                p = np.array(v[a]) + np.array(v[b])
                v.append(tuple(p / np.linalg.norm(p)))
                cache[key] = len(v) - 1
            return cache[key]

        for a, b, c in f:
            ab, bc, ca = middle(a, b), middle(b, c), middle(c, a)
            out += [(a, ab, ca), (b, bc, ab), (c, ca, bc), (ab, bc, ca)]
        f = out
    return v, f


def keep_faces(verts, faces, test):
    """Only the faces that test(middle) accepts, with the vertices they need."""
    used, out = {}, []
    for f in faces:
        mid = np.mean([verts[k] for k in f], axis=0)
        if test(mid):
            out.append(tuple(used.setdefault(k, len(used)) for k in f))
    return [verts[k] for k in used], out


def noise3(points, seed, scale):
    """Smooth value noise of 3D points, about -1..1; the same on every machine."""
    p = np.asarray(points, float) / scale
    i = np.floor(p).astype(np.int64)
    f = p - i
    f = f * f * (3 - 2 * f)
    out = np.zeros(p.shape[:-1])
    for dx in (0, 1):
        for dy in (0, 1):
            for dz in (0, 1):
                h = (i[..., 0] + dx) * 374761393 + (i[..., 1] + dy) * 668265263
                h = (h + (i[..., 2] + dz) * 2147483647 + seed * 974634777) & 0xFFFFFFFF
                h = ((h ^ (h >> 13)) * 1274126177) & 0xFFFFFFFF
                h = h ^ (h >> 16)
                w = (f[..., 0] if dx else 1 - f[..., 0]) * (f[..., 1] if dy else 1 - f[..., 1])
                w = w * (f[..., 2] if dz else 1 - f[..., 2])
                out += w * ((h & 0xFFFF) / 32767.5 - 1)
    return out
