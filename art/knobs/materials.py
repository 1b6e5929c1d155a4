# SPDX-License-Identifier: GPL-3.0-or-later
# What the knobs, the cap and the bezel are made of. Colours are linear.
import bpy

IVORY = (0.80, 0.73, 0.60)
IVORY_ROUGHNESS = 0.5
GROOVE = (0.002, 0.002, 0.002)
BLACK = (0.012, 0.012, 0.013)
GRAIN_RINGS = 26.0  # of a brushed top, to a knob's radius


def _linear(value):
    return (*value, 1.0)


def surface(name, colour, roughness, metallic=0.0, specular=0.5):
    material = bpy.data.materials.new(name)
    material.use_nodes = True
    shader = material.node_tree.nodes["Principled BSDF"]
    shader.inputs["Base Color"].default_value = _linear(colour)
    shader.inputs["Roughness"].default_value = roughness
    shader.inputs["Metallic"].default_value = metallic
    shader.inputs["Specular"].default_value = specular
    return material


class Graph:
    """Short words for a material's nodes."""

    def __init__(self, material):
        self.tree = material.node_tree
        self.shader = self.tree.nodes["Principled BSDF"]

    def link(self, value, socket):
        if isinstance(value, (int, float)):
            socket.default_value = value
        else:
            self.tree.links.new(value, socket)

    def math(self, operation, first, second=0.0):
        node = self.tree.nodes.new("ShaderNodeMath")
        node.operation = operation
        self.link(first, node.inputs[0])
        self.link(second, node.inputs[1])
        return node.outputs[0]

    def position(self):
        """x, y, z in the part's own space, which turns with the knob."""
        coordinates = self.tree.nodes.new("ShaderNodeTexCoord")
        parts = self.tree.nodes.new("ShaderNodeSeparateXYZ")
        self.link(coordinates.outputs["Object"], parts.inputs[0])
        return parts.outputs

    def mix(self, factor, first, second):
        node = self.tree.nodes.new("ShaderNodeMixRGB")
        self.link(factor, node.inputs[0])
        for value, socket in ((first, node.inputs[1]), (second, node.inputs[2])):
            if isinstance(value, tuple):
                socket.default_value = _linear(value)
            else:
                self.link(value, socket)
        return node.outputs[0]


def with_line(material, half_width, first, last, groove):
    """An ivory line inlaid along y from first to last, with a dark edge of this width around it."""
    graph = Graph(material)
    x, y, _ = graph.position()
    across = graph.math("ABSOLUTE", x)
    along = graph.math("ABSOLUTE", graph.math("SUBTRACT", y, 0.5 * (first + last)))

    def inside(margin):
        return graph.math("MULTIPLY", graph.math("LESS_THAN", across, half_width + margin),
                          graph.math("LESS_THAN", along, 0.5 * (last - first) + margin))

    colour = graph.shader.inputs["Base Color"]
    line = inside(0.0)
    cut = graph.mix(inside(groove), tuple(colour.default_value)[:3], GROOVE)
    graph.link(graph.mix(line, cut, IVORY), colour)
    roughness = graph.shader.inputs["Roughness"]
    own = roughness.default_value
    rougher = graph.math("MULTIPLY", line, IVORY_ROUGHNESS - own)
    graph.link(graph.math("ADD", rougher, own), roughness)


def turned(name, colour, roughness, anisotropy, grain):
    """Metal brushed in circles around z: a fan of light, and rings of a grain that is part grain
    lighter and darker. It looks the same however it is turned."""
    material = surface(name, colour, roughness, metallic=1.0)
    graph = Graph(material)
    x, y, _ = graph.position()
    radius = graph.math("SQRT", graph.math("ADD", graph.math("MULTIPLY", x, x),
                                           graph.math("MULTIPLY", y, y)))
    noise = graph.tree.nodes.new("ShaderNodeTexNoise")
    noise.noise_dimensions = "1D"
    noise.inputs["Scale"].default_value = GRAIN_RINGS
    noise.inputs["Detail"].default_value = 3.0
    graph.link(radius, noise.inputs["W"])
    shade = graph.math("ADD", 1.0 - grain,
                       graph.math("MULTIPLY", noise.outputs["Fac"], 2.0 * grain))
    grey = graph.tree.nodes.new("ShaderNodeVectorMath")
    grey.operation = "SCALE"
    grey.inputs[0].default_value = colour
    graph.link(shade, grey.inputs["Scale"])
    graph.link(grey.outputs[0], graph.shader.inputs["Base Color"])
    tangent = graph.tree.nodes.new("ShaderNodeTangent")
    tangent.direction_type = "RADIAL"
    tangent.axis = "Z"
    graph.link(tangent.outputs[0], graph.shader.inputs["Tangent"])
    graph.shader.inputs["Anisotropic"].default_value = anisotropy
    graph.shader.inputs["Anisotropic Rotation"].default_value = 0.25
    return material
