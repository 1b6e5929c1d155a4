# SPDX-License-Identifier: GPL-3.0-or-later
# The table things stand on to be photographed: camera straight above, one sun, one sky. Everything
# is lit alike, so that a knob, a cap and a bezel belong to one panel. Runs inside Blender.
import math
import os
import tempfile

import bpy
import numpy

import materials

SUN_ELEVATION = 50.0  # degrees above the panel
SUN_FROM = -30.0  # degrees clockwise from the top of the screen: eleven o'clock
SUN_STRENGTH = 2.9
SUN_SIZE = 12.0  # degrees; how soft shadows are
ROOM = (0.13, 0.135, 0.14)
# Azimuth and elevation, degrees from the middle to where it is dark, strength, colour.
WINDOWS = ((SUN_FROM, 60.0, 50.0, 0.75, (1.0, 0.98, 0.95)),
           (SUN_FROM + 180.0, 30.0, 50.0, 0.30, (0.80, 0.90, 1.0)))
THREADS = 2


def clear():
    bpy.ops.wm.read_factory_settings(use_empty=True)


def _direction(azimuth, elevation):
    a, e = math.radians(azimuth), math.radians(elevation)
    return math.sin(a) * math.cos(e), math.cos(a) * math.cos(e), math.sin(e)


def light():
    data = bpy.data.lights.new("key", "SUN")
    data.energy = SUN_STRENGTH
    data.angle = math.radians(SUN_SIZE)
    sun = bpy.data.objects.new("key", data)
    sun.rotation_euler = (math.radians(90.0 - SUN_ELEVATION), 0.0,
                          math.radians(180.0 - SUN_FROM))
    bpy.context.collection.objects.link(sun)
    _sky()


def _sky():
    """A dim room, a wide soft window over the key light, a weak cool fill from below right."""
    world = bpy.data.worlds.new("sky")
    bpy.context.scene.world = world
    world.use_nodes = True
    tree = world.node_tree
    room = tree.nodes.new("ShaderNodeRGB")
    room.outputs[0].default_value = (*ROOM, 1.0)
    total = room.outputs[0]
    for window in WINDOWS:
        total = _with_window(tree, total, *window)
    tree.links.new(total, tree.nodes["Background"].inputs["Color"])


def _with_window(tree, sky, azimuth, elevation, width, strength, colour):
    """The sky and a round window in it, brightest in its middle."""
    coordinates = tree.nodes.new("ShaderNodeTexCoord")
    dot = tree.nodes.new("ShaderNodeVectorMath")
    dot.operation = "DOT_PRODUCT"
    tree.links.new(coordinates.outputs["Generated"], dot.inputs[0])
    dot.inputs[1].default_value = _direction(azimuth, elevation)
    fall = tree.nodes.new("ShaderNodeMapRange")
    fall.interpolation_type = "SMOOTHERSTEP"
    fall.inputs["From Min"].default_value = math.cos(math.radians(width))
    fall.inputs["From Max"].default_value = 1.0
    fall.inputs["To Max"].default_value = strength
    tree.links.new(dot.outputs["Value"], fall.inputs["Value"])
    add = tree.nodes.new("ShaderNodeMixRGB")
    add.blend_type = "ADD"
    tree.links.new(fall.outputs["Result"], add.inputs[0])
    tree.links.new(sky, add.inputs[1])
    add.inputs[2].default_value = (*colour, 1.0)
    return add.outputs[0]


def camera(width, height, centre=(0.0, 0.0)):
    """Sees width x height of the table from above."""
    data = bpy.data.cameras.new("camera")
    data.type = "ORTHO"
    data.sensor_fit = "AUTO"
    data.ortho_scale = max(width, height)
    data.clip_end = 100.0
    view = bpy.data.objects.new("camera", data)
    view.location = (*centre, 20.0)
    bpy.context.collection.objects.link(view)
    bpy.context.scene.camera = view


def part(name, mesh, material):
    """The mesh data of one part, to be placed any number of times."""
    points, faces = mesh
    data = bpy.data.meshes.new(name)
    data.from_pydata(points, [], faces)
    data.polygons.foreach_set("use_smooth", [True] * len(data.polygons))
    data.materials.append(material)
    data.update()
    return data


def place(data, location=(0.0, 0.0, 0.0), clockwise=0.0):
    placed = bpy.data.objects.new(data.name, data)
    placed.location = location
    placed.rotation_euler = (0.0, 0.0, -math.radians(clockwise))
    bpy.context.collection.objects.link(placed)
    return placed


def _panel(size=500.0):
    corners = [(-size, -size, 0.0), (size, -size, 0.0), (size, size, 0.0), (-size, size, 0.0)]
    return place(part("panel", (corners, [(0, 1, 2, 3)]),
                      materials.surface("panel", (0.5, 0.5, 0.5), 1.0, specular=0.0)))


def _film(width, height):
    render = bpy.context.scene.render
    render.engine = "CYCLES"
    render.resolution_x = width
    render.resolution_y = height
    render.resolution_percentage = 100
    render.film_transparent = True
    render.threads_mode = "FIXED"
    render.threads = THREADS
    render.image_settings.file_format = "OPEN_EXR"
    render.image_settings.color_mode = "RGBA"
    render.image_settings.color_depth = "32"


def _rays(samples):
    cycles = bpy.context.scene.cycles
    cycles.device = "CPU"
    cycles.samples = samples
    cycles.seed = 1
    cycles.use_adaptive_sampling = False
    cycles.use_denoising = False
    cycles.use_auto_tile = False
    cycles.max_bounces = 3
    cycles.diffuse_bounces = 2
    cycles.glossy_bounces = 2
    cycles.caustics_reflective = False
    cycles.caustics_refractive = False
    # Sparks of the sun in fine edges, brighter than white, would leave jagged pixels.
    cycles.sample_clamp_direct = 2.0
    cycles.sample_clamp_indirect = 1.0
    cycles.blur_glossy = 1.0
    cycles.pixel_filter_type = "BLACKMAN_HARRIS"
    cycles.filter_width = 1.3  # pixels


def shoot(width, height, samples):
    """What the camera sees: rows from the top, linear red, green, blue times alpha, and alpha."""
    _film(width, height)
    _rays(samples)
    handle, path = tempfile.mkstemp(suffix=".exr")
    os.close(handle)
    bpy.context.scene.render.filepath = path
    bpy.ops.render.render(write_still=True)
    picture = bpy.data.images.load(path)
    picture.alpha_mode = "PREMUL"
    pixels = numpy.empty(width * height * 4, dtype=numpy.float32)
    picture.pixels.foreach_get(pixels)
    bpy.data.images.remove(picture)
    os.remove(path)
    return pixels.reshape(height, width, 4)[::-1].copy()


def shadow(things, width, height, samples):
    """How much of the light reaches the panel below the things: 1 where nothing is in its way."""
    panel = _panel()
    for thing in things:
        thing.visible_camera = False
    below = shoot(width, height, samples)[:, :, 1]
    for thing in things:
        thing.hide_render = True
    open_panel = shoot(16, 16, 256)[:, :, 1].mean()
    panel.hide_render = True
    return below / open_panel
