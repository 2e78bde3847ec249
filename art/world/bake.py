"""Runs inside Blender: bakes light into pictures.

Usage: blender -b --factory-startup -P bake.py -- JOBS.json
JOBS.json lists jobs; each names its input mesh (.npz), size, kind and output.  Kinds:
  object  smart-projected uv, albedo x sky light x bounce -> page (sRGB bytes) and uv
  light   given planar uv, white surface among all casters -> light factor, shadow factor
Everything is seeded; the same machine gives the same bytes.
"""
import json
import math
import sys

import bmesh  # noqa: F401  (part of Blender)
import bpy
import numpy as np

UNIT = 0.01


def clear():
    bpy.ops.wm.read_factory_settings(use_empty=True)
    s = bpy.context.scene
    s.render.engine = "CYCLES"
    s.cycles.device = "CPU"
    s.cycles.seed = 7
    s.cycles.use_denoising = False
    s.cycles.use_adaptive_sampling = False
    s.cycles.max_bounces = 3
    s.cycles.diffuse_bounces = 3
    s.cycles.glossy_bounces = 0
    s.cycles.transmission_bounces = 0
    s.render.threads_mode = "FIXED"
    s.render.threads = 2
    return s


def world(top=1.15, horizon=1.0, below=0.45):
    w = bpy.data.worlds.new("w")
    bpy.context.scene.world = w
    w.use_nodes = True
    n, links = w.node_tree.nodes, w.node_tree.links
    n.clear()
    out = n.new("ShaderNodeOutputWorld")
    back = n.new("ShaderNodeBackground")
    geo = n.new("ShaderNodeTexCoord")
    sep = n.new("ShaderNodeSeparateXYZ")
    ramp = n.new("ShaderNodeValToRGB")
    mapr = n.new("ShaderNodeMapRange")
    mapr.inputs[1].default_value = -1
    mapr.inputs[2].default_value = 1
    links.new(geo.outputs["Generated"], sep.inputs[0])
    links.new(sep.outputs[2], mapr.inputs[0])
    links.new(mapr.outputs[0], ramp.inputs[0])
    e = ramp.color_ramp.elements
    e[0].position, e[0].color = 0.44, (below,) * 3 + (1,)
    e[1].position, e[1].color = 1.0, (top * 0.97, top, top * 1.04, 1)
    mid = ramp.color_ramp.elements.new(0.52)
    mid.color = (horizon * 1.04, horizon, horizon * 0.96, 1)
    links.new(ramp.outputs[0], back.inputs[0])
    links.new(back.outputs[0], out.inputs[0])


def linear(c):
    c = np.asarray(c, float) / 255
    return np.where(c <= 0.04045, c / 12.92, ((c + 0.055) / 1.055) ** 2.4)


def srgb(c):
    c = np.clip(c, 0, 1)
    return 255 * np.where(c <= 0.0031308, c * 12.92, 1.055 * c ** (1 / 2.4) - 0.055)


def mesh_object(name, verts, faces, colors, uvs=None):
    me = bpy.data.meshes.new(name)
    me.from_pydata([tuple(map(float, v)) for v in verts * UNIT], [],
                   [tuple(map(int, f)) for f in faces])
    col = me.color_attributes.new("albedo", "FLOAT_COLOR", "CORNER")
    lin = np.ones((len(faces), 3, 4), np.float32)
    lin[:, :, :3] = linear(colors)[:, None, :]
    col.data.foreach_set("color", lin.reshape(-1))
    if uvs is not None:
        layer = me.uv_layers.new(name="uv")
        layer.data.foreach_set("uv", np.asarray(uvs, np.float32).reshape(-1))
    ob = bpy.data.objects.new(name, me)
    bpy.context.scene.collection.objects.link(ob)
    return ob


def albedo_material(noise=True, wet=False, feet=True, flat=None):
    m = bpy.data.materials.new("m")
    m.use_nodes = True
    n, links = m.node_tree.nodes, m.node_tree.links
    n.clear()
    out = n.new("ShaderNodeOutputMaterial")
    diff = n.new("ShaderNodeBsdfDiffuse")
    links.new(diff.outputs[0], out.inputs[0])
    if flat is not None:
        diff.inputs[0].default_value = tuple(linear(flat)) + (1,)
        return m
    attr = n.new("ShaderNodeVertexColor")
    attr.layer_name = "albedo"
    color = attr.outputs[0]

    def times(value, a, b):
        """Multiplies the colour by value mapped from 0..1 to a..b."""
        nonlocal color
        mr = n.new("ShaderNodeMapRange")
        mr.inputs[3].default_value, mr.inputs[4].default_value = a, b
        links.new(value, mr.inputs[0])
        mx = n.new("ShaderNodeVectorMath")
        mx.operation = "SCALE"
        links.new(color, mx.inputs[0])
        links.new(mr.outputs[0], mx.inputs[3])
        color = mx.outputs[0]

    if noise:
        co = n.new("ShaderNodeTexCoord")
        for scale, detail, amount in ((0.7, 3, 0.16), (3.2, 4, 0.15), (14.0, 2, 0.09)):
            t = n.new("ShaderNodeTexNoise")
            t.inputs["Scale"].default_value = scale
            t.inputs["Detail"].default_value = detail
            links.new(co.outputs["Object"], t.inputs["Vector"])
            times(t.outputs[0], 1 - 2 * amount, 1 + 2 * amount)
    geo = n.new("ShaderNodeNewGeometry")
    sep = n.new("ShaderNodeSeparateXYZ")
    links.new(geo.outputs["Position"], sep.inputs[0])
    if feet:
        mr = n.new("ShaderNodeMapRange")
        mr.inputs[1].default_value, mr.inputs[2].default_value = 0.0, 0.9
        links.new(sep.outputs[2], mr.inputs[0])
        times(mr.outputs[0], 0.72, 1.0)
    if wet:
        mr = n.new("ShaderNodeMapRange")
        mr.inputs[1].default_value, mr.inputs[2].default_value = 0.22, 0.34
        links.new(sep.outputs[2], mr.inputs[0])
        mx = n.new("ShaderNodeMixRGB")
        mx.inputs[1].default_value = tuple(linear((78, 88, 84))) + (1,)
        links.new(mr.outputs[0], mx.inputs[0])
        links.new(color, mx.inputs[2])
        color = mx.outputs[0]
    links.new(color, diff.inputs[0])
    return m


def emission_material(color, strength):
    m = bpy.data.materials.new("e")
    m.use_nodes = True
    n, links = m.node_tree.nodes, m.node_tree.links
    n.clear()
    out = n.new("ShaderNodeOutputMaterial")
    em = n.new("ShaderNodeEmission")
    em.inputs[0].default_value = tuple(linear(color)) + (1,)
    em.inputs[1].default_value = strength
    links.new(em.outputs[0], out.inputs[0])
    return m


def bake_into(ob, size, kind, samples, passes=None, margin=4):
    img = bpy.data.images.new("bake", size, size, alpha=True, float_buffer=True)
    img.generated_color = (0, 0, 0, 0)
    for slot in ob.material_slots:
        n = slot.material.node_tree.nodes
        t = n.new("ShaderNodeTexImage")
        t.image = img
        n.active = t
    for o in bpy.context.scene.objects:
        o.select_set(False)
    ob.select_set(True)
    bpy.context.view_layer.objects.active = ob
    bpy.context.scene.cycles.samples = samples
    args = dict(type=kind, margin=margin, use_clear=True)
    if passes:
        args["pass_filter"] = passes
    bpy.ops.object.bake(**args)
    px = np.array(img.pixels[:], np.float32).reshape(size, size, 4)[::-1]
    bpy.data.images.remove(img)
    return px


def load(path):
    d = np.load(path)
    return d["verts"], d["faces"], d["colors"], d["textured"]


def plane(z, color, size=120.0):
    s = size
    ob = mesh_object("plane", np.array([(-s, -s, z), (s, -s, z), (s, s, z), (-s, s, z)]) / UNIT,
                     np.array([(0, 1, 2), (0, 2, 3)]), np.array([color, color]))
    ob.data.materials.append(albedo_material(flat=color))
    return ob


def job_object(job):
    clear()
    world()
    verts, faces, colors, textured = load(job["mesh"])
    body = mesh_object("body", verts, faces[textured], colors[textured])
    body.data.materials.append(albedo_material(True, job["wet"], job["feet"]))
    if (~textured).any():
        glow = mesh_object("glow", verts, faces[~textured], colors[~textured])
        glow.data.materials.append(emission_material((255, 190, 90), job["glow"]))
    if job["floor"] is not None:
        plane(job["floor"] * UNIT, job["floor_color"])
    bpy.context.view_layer.objects.active = body
    body.select_set(True)
    bpy.ops.object.mode_set(mode="EDIT")
    bpy.ops.mesh.select_all(action="SELECT")
    bpy.ops.uv.smart_project(angle_limit=math.radians(job["angle"]), island_margin=job["gap"],
                             area_weight=0.0, scale_to_bounds=False)
    bpy.ops.object.mode_set(mode="OBJECT")
    px = bake_into(body, job["size"], "COMBINED", job["samples"])
    uv = np.zeros(len(body.data.loops) * 2, np.float32)
    body.data.uv_layers.active.data.foreach_get("uv", uv)
    uv = uv.reshape(-1, 3, 2)
    full = np.zeros((len(faces), 3, 2), np.float32)
    full[textured] = uv
    used = px[..., 3] > 0.5
    rgb = px[..., :3]
    # Keep the darkest corners open: a floor below the light, in the albedo's own colour.
    page = srgb(rgb)
    mean = page[used].mean(axis=0)
    low = 0.30 * mean
    page = np.where(used[..., None], np.maximum(page, low + 0.25 * page), mean)
    np.savez(job["out"], page=np.round(page).astype(np.uint8), uv=np.round(full, 4))
    print("baked", job["name"], "mean", mean.round(), flush=True)


def place(ob, row):
    x, y, z, turn, size = row
    ob.location = (x * UNIT, y * UNIT, z * UNIT)
    ob.rotation_euler = (0, 0, -math.radians(turn))
    ob.scale = (size, size, size)


def job_light(jobs, scene_rows, meshes):
    """All planar surfaces share one scene: bake open sky light, then the sun's shadow."""
    s = clear()
    world()
    clay = albedo_material(flat=(150, 130, 112))
    datas = {}
    for name, row in scene_rows:
        if name not in datas:
            v, f, c, t = load(meshes[name])
            ob = mesh_object(name, v, f, c)
            ob.data.materials.append(clay)
            datas[name] = ob.data
        else:
            ob = bpy.data.objects.new(name, datas[name])
            s.collection.objects.link(ob)
        place(ob, row)
    targets = []
    for job in jobs:
        d = np.load(job["mesh"])
        ob = mesh_object("t-" + job["name"], d["verts"], d["faces"], d["colors"], d["uvs"])
        ob.data.materials.append(albedo_material(flat=(188, 188, 188)))
        place(ob, job["row"])
        targets.append((job, ob))
    sun = bpy.data.lights.new("sun", "SUN")
    sun.angle = math.radians(2.5)
    sun.energy = math.pi
    sun_ob = bpy.data.objects.new("sun", sun)
    d = np.array((1, 1, 0.8)) / np.linalg.norm((1, 1, 0.8))
    sun_ob.rotation_euler = (math.acos(d[2]), 0, math.atan2(d[1], d[0]) + math.pi / 2)
    albedo = float(linear((188, 188, 188))[0])
    for job, ob in targets:
        px = bake_into(ob, job["size"], "COMBINED", job["samples"], margin=6)
        sky = px[..., :3] / albedo
        s.collection.objects.link(sun_ob)
        back = s.world.node_tree.nodes
        bg = [k for k in back if k.type == "BACKGROUND"][0]
        bg.inputs[1].default_value = 0.0
        lit = bake_into(ob, job["size"], "DIFFUSE", max(8, job["samples"] // 2), {"DIRECT"},
                        margin=6)
        # Divide by what the slope alone would receive.
        for o in s.objects:
            if o.type == "MESH" and o is not ob:
                o.hide_render = True
        free = bake_into(ob, job["size"], "DIFFUSE", 4, {"DIRECT"}, margin=6)
        for o in s.objects:
            o.hide_render = False
        bg.inputs[1].default_value = 1.0
        s.collection.objects.unlink(sun_ob)
        shadow = lit[..., 0] / np.maximum(free[..., 0], 0.02)
        shadow = np.where(free[..., 0] < 0.02, 1.0, np.clip(shadow, 0, 1))
        used = px[..., 3] > 0.5
        sky[~used] = 1.0
        shadow[~used] = 1.0
        np.savez(job["out"], sky=sky.astype(np.float16), shadow=shadow.astype(np.float16))
        print("light", job["name"], sky[used].mean(axis=0).round(3), shadow[used].mean().round(3),
              flush=True)


def main():
    spec = json.load(open(sys.argv[sys.argv.index("--") + 1]))
    for job in spec["objects"]:
        job_object(job)
    if spec["lights"]:
        job_light(spec["lights"], spec["rows"], spec["meshes"])
    print("all baked", flush=True)


main()
