# SPDX-License-Identifier: GPL-3.0-or-later
# Meshes of turned and moulded parts, as plain lists of points and faces. Lengths are in knob radii;
# the panel is the plane z = 0, the pointer is along +y.
import math


def rounded(points, steps=8, support=0.012):
    """A polyline of (x, z, radius) with its corners rounded. Beside each arc stands a point of
    support, so that a flat face next to it keeps the normal of a flat face."""
    line = [points[0][:2]]
    for before, (x, z, radius), after in zip(points, points[1:], points[2:]):
        if radius <= 0:
            line.append((x, z))
            continue
        line.extend(_arc((x, z), before[:2], after[:2], radius, steps, support))
    line.append(points[-1][:2])
    return line


def _unit(x, y):
    length = math.hypot(x, y)
    return x / length, y / length


def _arc(corner, before, after, radius, steps, support):
    ax, az = _unit(before[0] - corner[0], before[1] - corner[1])
    bx, bz = _unit(after[0] - corner[0], after[1] - corner[1])
    half = 0.5 * math.acos(max(-1.0, min(1.0, ax * bx + az * bz)))
    reach = radius / math.tan(half)
    mx, mz = _unit(ax + bx, az + bz)
    centre = (corner[0] + mx * radius / math.sin(half), corner[1] + mz * radius / math.sin(half))
    first = (corner[0] + ax * reach, corner[1] + az * reach)
    last = (corner[0] + bx * reach, corner[1] + bz * reach)
    start = math.atan2(first[1] - centre[1], first[0] - centre[0])
    turn = math.atan2(last[1] - centre[1], last[0] - centre[0]) - start
    turn = (turn + math.pi) % (2 * math.pi) - math.pi
    points = [(first[0] + ax * support, first[1] + az * support)]
    for i in range(steps + 1):
        angle = start + turn * i / steps
        points.append((centre[0] + radius * math.cos(angle), centre[1] + radius * math.sin(angle)))
    points.append((last[0] + bx * support, last[1] + bz * support))
    return points


def lathe(profile, segments, depth_at=None):
    """Turns a profile of (radius, z), from the rim to the middle, around z. depth_at(index, angle)
    is what a tool has cut off the radius there. The last point is closed to a disc."""
    points = []
    for index, (radius, z) in enumerate(profile):
        for s in range(segments):
            angle = 2 * math.pi * s / segments
            r = radius - (depth_at(index, angle) if depth_at else 0.0)
            points.append((r * math.sin(angle), r * math.cos(angle), z))
    return points, _ring_faces(len(profile), segments)


def _ring_faces(rings, count):
    faces = []
    for ring in range(rings - 1):
        for s in range(count):
            a = ring * count + s
            b = ring * count + (s + 1) % count
            faces.append((a, a + count, b + count, b))
    faces.append(tuple(range((rings - 1) * count, rings * count))[::-1])
    return faces


def bezier(start, first, second, end, steps):
    """Points of a cubic curve, without its last one."""
    points = []
    for i in range(steps):
        t = i / steps
        u = 1 - t
        k = (u * u * u, 3 * u * u * t, 3 * u * t * t, t * t * t)
        points.append(tuple(k[0] * a + k[1] * b + k[2] * c + k[3] * d
                            for a, b, c, d in zip(start, first, second, end)))
    return points


def mirrored(half):
    """A closed outline from its right half, which begins and ends on the axis x = 0."""
    return half + [(-x, y) for x, y in half[-2:0:-1]]


def loft(outline, levels):
    """A part that gets narrower towards its top. levels: functions of a point of the outline that
    give the part's point there, from the foot to the top. It is open there."""
    points = [level(x, y) for level in levels for x, y in outline]
    count = len(outline)
    faces = []
    for ring in range(len(levels) - 1):
        for s in range(count):
            a = ring * count + s
            b = ring * count + (s + 1) % count
            faces.append((a, b, b + count, a + count))
    return points, faces


def bridged(mesh, count):
    """A loft of a mirrored outline of so many points, its top closed from side to side. Both ends
    of the outline are straight there."""
    points, faces = mesh
    top = len(points) - count
    for right in range(1, count // 2 - 1):
        left = count - right
        faces.append((top + right, top + right + 1, top + left - 1, top + left))
    return points, faces
