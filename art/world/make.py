"""Makes every file of data/ but the soundtrack.  Usage: make.py DATA_FOLDER CACHE_FOLDER [--plain]

Bakes are read from CACHE_FOLDER/bake (see bake.py); --plain colours the faces flat instead.
"""
import math
import pathlib
import sys

import numpy as np

import bitmap
import cobfile
import fixed
import flights
import fonts
import island
import layout
import lights
import models
import paint

MODELS = {
    "causeway": models.causeway, "causeway-lit": models.causeway_lit,
    "gate": models.gate, "parasol-pole": models.parasol_pole,
    "tower": models.tower, "viaduct": models.viaduct, "pavilion": models.pavilion,
    "armillary": models.armillary, "basin": models.basin, "hour-stone": models.hour_stone,
    "lamp": models.lamp, "stand": models.shade_stand, "pine": models.pine,
    "islet": models.islet, "reef": models.reef, "spire": models.spire, "boat": models.boat,
    "lantern-ring": models.lantern_ring, "canopy": models.canopy,
}

# Objects of lights alone, without a picture.
LIGHTS = {"garlands": lights.garlands, "paper-boats": lights.paper_boats,
          "signs": lights.signs, "traces": lights.traces, "beam": lights.beam}
# Height of the water in the frame of what stands in it.
FOAM = {"reef": 20, "spire": 30, "boat": 14}
# Lights that turn with an object; they are added after its bake.
# Heights in lights.py are above the sea.
CARRIED = {"gate": [(lights.foam_of_gate, 0)],
           "lantern-ring": [(lights.arms, -island.PLAZA_TOP)],
           "pine": [(lights.in_the_pine, 0)],
           "canopy": [(lights.swimmers, -island.PLAZA_TOP),
                      (lambda: lights.on_the_ribs(models.canopy_point), 0)]}

ROCKS = ((132, 106, 99), (176, 148, 128), (88, 86, 88))

# Models that bring their own uv, and who paints them.
PAINTED = {"canopy": paint.canopy}
# Bakes that need another balance: the way lies within the wet band of the baker.
TINT = {"causeway": (1.42, 1.27, 1.18), "causeway-lit": (1.42, 1.27, 1.18)}
# Ground that the flights see from afar only: painted and baked as the rest, stored half as large.
HALVED = {"isle-21"}
# Lights in these are for the bake alone.
UNLIT = {"causeway-lit"}
# Small things that are drawn in the plain colour nearest to that of each face.  Below the sea they
# then keep it as points, where a textured face gives white ones; and they are drawn faster.
PLAIN = {"pine": ((123, 93, 82), (78, 120, 94), (104, 142, 100)),
         "reef": ROCKS, "spire": ROCKS}


def swatches(mesh):
    """Flat colours: one texel block for each albedo.  Returns the picture, sets the uv."""
    colors = sorted({c for c in mesh.colors})
    side = 1
    while side * side < len(colors):
        side *= 2
    px = max(4, 64 // side)
    size = side * px
    page = np.zeros((size, size, 3))
    where = {}
    for k, c in enumerate(colors):
        i, j = k % side, k // side
        page[j * px:(j + 1) * px, i * px:(i + 1) * px] = c
        where[c] = ((i * px + px / 2) / (size - 1), 1 - (j * px + px / 2) / (size - 1))
    mesh.uvs = [(where[c],) * 3 for c in mesh.colors]
    return page


def in_plain_colors(mesh, palette):
    """Textured faces take the colour of the palette that is nearest to their own, lit as before."""
    for k, (mat, color) in enumerate(zip(mesh.mats, mesh.colors)):
        if cobfile.material(mat)[0]:
            near = min(palette, key=lambda p: sum((a - b) ** 2 for a, b in zip(p, color)))
            mesh.mats[k] = "plain:%s:%d,%d,%d" % ((cobfile.material(mat)[1],) + near)
            mesh.uvs[k] = None


def lift(page):
    """Baked pictures, opened up: the renderer's own light still multiplies them."""
    page = 255 * (page / 255) ** 0.78
    grey = page.mean(axis=-1, keepdims=True)
    return np.clip(grey + 1.14 * (page - grey), 0, 255)


def lamp_pools(x, y):
    """What the lamps on land add to the light of the ground at map places, as factors of red, green
    and blue: by the square of the distance, and less where it falls aslant."""
    light = np.zeros(np.shape(x))
    for name, at_x, at_y, at_z, _, size in layout.rows():
        if name == "lamp" and math.hypot(at_x, at_y) < 1500:
            high = 138.0 * size
            light += (high / np.sqrt((x - at_x) ** 2 + (y - at_y) ** 2 + high ** 2)) ** 3
    return 1 + light[..., None] * np.array((0.62, 0.40, 0.12))


def main():
    data, cache = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    plain = "--plain" in sys.argv
    d3, d2, tex, cam = (data / p for p in ("3d", "2d", "texture", "cam"))
    for p in (d3, d2, tex, cam):
        p.mkdir(parents=True, exist_ok=True)

    def picture(name, page, amplitude=0.8):
        bitmap.write_bmp(tex / (name + ".bmp"), bitmap.dither565(page, amplitude))
        return name + ".bmp"

    def spare(mesh):
        return (0.0, 0.0, 1.42 * mesh.reach())

    # The fixed objects.
    day = paint.sky_day()
    picture("sky-day", day, 1.0)
    picture("sky-night", paint.sky_night(day), 1.0)
    water = paint.sea_tile()
    picture("sea", water)
    picture("sea-night", paint.sea_night(water))
    picture("sea-far", paint.sea_far(water.mean(axis=(0, 1))))
    picture("glass", paint.glass(), 1.0)
    picture("globe-stand", paint.stand(256))
    cobfile.write(d3 / "sky-sphere-04.cob", "sky", fixed.sky(), "sky-day.bmp", "fixed",
                  fixed.SKY_SCALE)
    cobfile.write(d3 / "sky-sphere-04-alpha-s2.cob", "night", fixed.sky_night(), "sky-night.bmp",
                  "fixed", fixed.SKY_SCALE)
    cobfile.write(d3 / "sky-sphere-04-alpha0.cob", "glass", fixed.glass(), "glass.bmp", "fixed",
                  fixed.SKY_SCALE)
    cobfile.write(d3 / "stay-01.cob", "stand", fixed.stand(), "globe-stand.bmp", "fixed",
                  fixed.STAND_SCALE)
    helper = (0.0, 1062.5, 0.0)
    cobfile.write(d3 / "ground-lowpoly-03.cob", "water", fixed.ground(8, "plastic"), "sea.bmp",
                  "fixed", fixed.GROUND_SCALE, helper, True)
    cobfile.write(d3 / "ground-lowpoly-03-alpha.cob", "night-water",
                  fixed.ground(6, "tex:plastic:4"), "sea-night.bmp", "fixed", fixed.GROUND_SCALE,
                  helper, True)
    cobfile.write(d3 / "light_debug.cob", "light-mark", fixed.light_mark(), None, "fixed",
                  (100, 100))

    # The island and the dial: painted, times baked light where it is cached.
    def baked_light(name, page):
        path = cache / "bake" / (name + ".light.npz")
        if plain or not path.exists():
            return page
        stored = np.load(path)
        # Open sky is 1; the sun's shadow leaves 0.62 and goes towards lilac.
        sky = np.clip(stored["sky"].astype(float), 0, 1.15) ** 0.5
        shadow = stored["shadow"].astype(float)[..., None]
        if len(sky) < len(page):
            sky, shadow = bitmap.double(sky), bitmap.double(shadow)
        tone = np.array((0.68, 0.66, 0.74))
        light = (0.47 + 0.53 * sky) * (tone + (1 - tone) * shadow)
        return page * light

    for i in range(3):
        for j in range(3):
            name = "isle-%d%d" % (i, j)
            if (i, j) == (1, 1):
                continue          # under the dial
            mesh = island.patch(i, j)
            cx, cy = island.patch_middle(i, j)
            n = island.texture_size(i, j)
            y, x = (np.mgrid[0:n, 0:n] + 0.5) / n - 0.5
            x, y = cx + x * island.PATCH, cy - y * island.PATCH
            page = paint.sand_color(x, y, island.height(x, y))
            page = baked_light(name, page) * lamp_pools(x, y)
            if name in HALVED:
                page = page.reshape(n // 2, 2, n // 2, 2, 3).mean(axis=(1, 3))
            picture(name, page)
            cobfile.write(d3 / (name + ".cob"), name, mesh, name + ".bmp", spare=spare(mesh))
    mesh = island.dial()
    page = paint.dial(1024, island.DIAL_REACH)
    y, x = (np.mgrid[0:1024, 0:1024] + 0.5) / 512 - 1
    pools = lamp_pools(x * island.DIAL_REACH, -y * island.DIAL_REACH)
    picture("dial", baked_light("dial", page) * pools)
    cobfile.write(d3 / "dial.cob", "dial", mesh, "dial.bmp", spare=spare(mesh))
    sea = fixed.sea_disc()
    cobfile.write(d3 / "sea.cob", "sea", sea, "sea-far.bmp", spare=spare(sea))

    # Everything that the list places.
    for name, make in MODELS.items():
        mesh = make()
        bake = cache / "bake" / (name + ".npz")
        if name in PAINTED:
            page = PAINTED[name]()
        elif plain or not bake.exists():
            page = swatches(mesh)
        else:
            stored = np.load(bake)
            if len(stored["uv"]) != len(mesh.faces):
                raise SystemExit("%s: the cached bake is of another model" % name)
            mesh.uvs = [tuple((float(u), float(v)) for u, v in f) for f in stored["uv"]]
            page = lift(stored["page"].astype(float))
            page = np.clip(page * np.array(TINT.get(name, (1, 1, 1))), 0, 255)
        if name in UNLIT:
            mesh.keep([cobfile.material(k)[0] for k in mesh.mats])
        if name in PLAIN:
            in_plain_colors(mesh, PLAIN[name])
        if name in FOAM:
            mesh.join(lights.foam(mesh, FOAM[name]))
        for lit, up in CARRIED.get(name, []):
            mesh.join(lit(), (0, 0, up))
        if name not in PLAIN:
            picture(name, page)
        cobfile.write(d3 / (name + ".cob"), name, mesh,
                      None if name in PLAIN else name + ".bmp", spare=spare(mesh))
    for name, make in LIGHTS.items():
        mesh = make()
        cobfile.write(d3 / (name + ".cob"), name, mesh, None, spare=spare(mesh))
    dummy = models.dummy()
    cobfile.write(d3 / "dummy.cob", "dummy", dummy, None, spare=spare(dummy))

    layout.scene_list(data / "scene1.po")
    flights.tracks(cam)
    fonts.sheets(d2)


if __name__ == "__main__":
    main()
