# SPDX-License-Identifier: GPL-3.0-or-later
# From linear light, as Blender gives it, to the bytes of a picture.
import numpy

SHOULDER = 0.75  # above it highlights are compressed, so that none burns out


def srgb(linear):
    linear = numpy.clip(linear, 0.0, 1.0)
    return numpy.where(linear <= 0.0031308, 12.92 * linear,
                       1.055 * numpy.power(linear, 1.0 / 2.4) - 0.055)


def soft_clip(linear):
    over = numpy.maximum(linear - SHOULDER, 0.0)
    room = 1.0 - SHOULDER
    return numpy.where(linear > SHOULDER, SHOULDER + room * over / (over + room), linear)


def developed(premultiplied, alpha):
    """The thing's own colour in sRGB, 0 to 1, also where it only covers part of a pixel."""
    return srgb(soft_clip(premultiplied / numpy.maximum(alpha, 1e-4)[:, :, None]))


def over_shadow(colour, alpha, shadow):
    """Bytes of straight colour and alpha, of a thing over a black shadow. They are blended in sRGB,
    as programs blend: the shadow darkens what shows through the thing's edge, and not the edge."""
    total = alpha + shadow
    straight = colour * (alpha / numpy.maximum(total, 1e-4))[:, :, None]
    image = numpy.concatenate([straight, total[:, :, None]], axis=2)
    image = numpy.clip(numpy.rint(image * 255.0), 0, 255).astype(numpy.uint8)
    image[image[:, :, 3] == 0] = 0
    return image


def smooth_step(value, low, high):
    t = numpy.clip((value - low) / (high - low), 0.0, 1.0)
    return t * t * (3.0 - 2.0 * t)


def calmed(colour, noise, reach=2):
    """Each pixel the mean of those around it that differ by little more than noise (in the colour's
    own scale): faces get smooth, edges stay."""
    height, width = colour.shape[:2]
    padded = numpy.pad(colour, [(reach, reach), (reach, reach), (0, 0)], mode="edge")
    total = numpy.zeros_like(colour)
    weights = numpy.zeros((height, width, 1), dtype=colour.dtype)
    for y in range(2 * reach + 1):
        for x in range(2 * reach + 1):
            other = padded[y:y + height, x:x + width]
            far = ((other - colour) ** 2).sum(axis=2, keepdims=True) / (noise * noise)
            weight = numpy.exp(-far)
            total += weight * other
            weights += weight
    return total / weights


def blur(picture, sigma):
    """Gaussian, of this many pixels, along rows and columns."""
    reach = int(3 * sigma + 1)
    kernel = numpy.exp(-0.5 * (numpy.arange(-reach, reach + 1) / sigma) ** 2)
    kernel = (kernel / kernel.sum()).astype(picture.dtype)
    for axis in (0, 1):
        sides = [(reach, reach) if a == axis else (0, 0) for a in range(picture.ndim)]
        padded = numpy.moveaxis(numpy.pad(picture, sides, mode="edge"), axis, 0)
        length = picture.shape[axis]
        blurred = sum(weight * padded[i:i + length] for i, weight in enumerate(kernel))
        picture = numpy.moveaxis(blurred, 0, axis)
    return picture


def border(length, reach):
    """1 inside, falling to 0 at both ends of a line over this part of its length."""
    places = numpy.arange(length)
    inwards = numpy.minimum(places, length - 1 - places) / length
    return smooth_step(inwards, 1.0 / length, reach)
