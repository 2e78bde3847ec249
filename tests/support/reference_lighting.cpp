// Written from the rules of lighting, without a look at the fast pass. Every step is spelled out;
// the volatile variables keep each single-precision result apart from the next.
#include "reference_lighting.h"

#include <cstddef>

#include "base/pixel16.h"

namespace ombrel::test {

namespace {

enum Channel { RED, GREEN, BLUE };

// The processor's own conversion toward zero: whatever does not fit gives the smallest integer.
long long CutToInt32(float value) {
    const bool fits = value > -2147483904.0F && value < 2147483648.0F;
    if (!fits || value != value) {
        return -2147483648LL;
    }
    return static_cast<long long>(value);
}

float Multiply(float a, float b) {
    volatile float x = a;
    volatile float y = b;
    volatile float product = x * y;
    return product;
}
float Add(float a, float b) {
    volatile float x = a;
    volatile float y = b;
    volatile float sum = x + y;
    return sum;
}
float Divide(float a, float b) {
    volatile float x = a;
    volatile float y = b;
    volatile float quotient = x / y;
    return quotient;
}
float Negate(float a) {
    return -a;
}

struct Triple {
    float c[3];
};

Triple Minus(const Triple& a, const Triple& b) {
    Triple d;
    for (int i = 0; i < 3; ++i) {
        d.c[i] = Add(a.c[i], Negate(b.c[i]));
    }
    return d;
}

float Dot(const Triple& a, const Triple& b) {
    float sum = Multiply(a.c[0], b.c[0]);
    sum = Add(sum, Multiply(a.c[1], b.c[1]));
    sum = Add(sum, Multiply(a.c[2], b.c[2]));
    return sum;
}

Triple CrossProduct(const Triple& a, const Triple& b) {
    Triple n;
    for (int i = 0; i < 3; ++i) {
        const int j = (i + 1) % 3;
        const int k = (i + 2) % 3;
        n.c[i] = Add(Multiply(a.c[j], b.c[k]), Negate(Multiply(a.c[k], b.c[j])));
    }
    return n;
}

long long Wrap32(long long value) {
    long long w = value & 0xFFFFFFFFLL;
    if (w >= 0x80000000LL) {
        w -= 0x100000000LL;
    }
    return w;
}

// Floor division by a power of two, as an arithmetic shift does it.
long long ShiftRight(long long value, int bits) {
    const long long size = 1LL << bits;
    long long quotient = value / size;
    if (value % size < 0) {
        --quotient;
    }
    return quotient;
}

float FastLength(const Triple& v) {
    long long size[3];
    for (int i = 0; i < 3; ++i) {
        const float magnitude = v.c[i] < 0.0F ? Negate(v.c[i]) : v.c[i];
        size[i] = CutToInt32(Multiply(magnitude, 1024.0F));
    }
    // Selection: largest to the front, smallest to the back.
    for (int i = 0; i < 3; ++i) {
        for (int j = i + 1; j < 3; ++j) {
            if (size[j] > size[i]) {
                const long long other = size[i];
                size[i] = size[j];
                size[j] = other;
            }
        }
    }
    const long long sum = size[0] + ShiftRight(size[1], 5) * 11 + ShiftRight(size[2], 2);
    return static_cast<float>(ShiftRight(Wrap32(sum), 10));
}

Triple PositionOf(const FaceCorner& v) {
    return {{v.x, v.y, v.z}};
}
Triple ToTriple(const Vec3& v) {
    return {{v.x, v.y, v.z}};
}

unsigned BaseChannel(std::uint32_t color, Channel channel) {
    switch (channel) {
    case RED:
        return ((color & 0xF800) >> 11) * 8;
    case GREEN:
        return ((color & 0x07E0) >> 5) * 4;
    default:
        return (color & 0x001F) * 8;
    }
}

unsigned LightByte(std::uint32_t color, Channel channel) {
    const unsigned bytes[4] = {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF,
                               (color >> 24) & 0xFF};
    return channel == RED ? bytes[3] : channel == GREEN ? bytes[2] : bytes[1];
}

// One channel of one point under all lights. size: null for a corner with a normal of its own.
unsigned LightChannel(Channel channel, std::uint32_t color, const Triple& p, const Triple& n,
                      const float* size, const Light* lights, std::int32_t count) {
    const unsigned base = BaseChannel(color, channel);
    unsigned long long accumulator = 0; // an unsigned 32-bit number
    for (std::int32_t i = 0; i < count; ++i) {
        const Light& light = lights[i];
        if (light.enabled == 0) {
            continue;
        }
        const Triple lp = ToTriple(light.position);
        const Triple d = ToTriple(light.direction);
        float f = 0.0F;
        bool applies = false;
        if ((light.kind & 1) != 0) {
            const unsigned product = LightByte(light.ambientColor, channel) * base;
            accumulator = (accumulator + product / 256) & 0xFFFFFFFFULL;
            continue;
        } else if ((light.kind & 2) != 0) {
            applies = Dot(n, d) > 0.0F;
            f = Multiply(Dot(n, d), 128.0F);
        } else if ((light.kind & 4) != 0) {
            const Triple v = Minus(lp, p);
            const float dist = FastLength(v);
            const float delta =
                Add(Multiply(Add(Multiply(dist, light.c2), light.c1), dist), light.c0);
            applies = Dot(n, v) > 0.0F;
            f = Divide(Multiply(Dot(n, v), 128.0F), Multiply(delta, dist));
        } else if ((light.kind & 8) != 0) {
            const Triple v = Minus(lp, p);
            const float dist = FastLength(v);
            const float delta =
                Add(Multiply(Add(Multiply(dist, light.c2), light.c1), dist), light.c0);
            applies = Dot(n, d) > 0.0F;
            f = Divide(Multiply(Dot(n, d), 128.0F), delta);
        } else if ((light.kind & 16) != 0) {
            const Triple v = Minus(p, lp);
            const float dist = FastLength(v);
            const float delta =
                Add(Multiply(Add(Multiply(dist, light.c2), light.c1), dist), light.c0);
            const float s = Divide(Dot(v, d), dist);
            const long long exponent = CutToInt32(light.exponent);
            float power = s;
            for (long long k = 2; k <= exponent; ++k) {
                power = Multiply(power, s);
            }
            applies = Dot(n, d) > 0.0F && s > 0.0F;
            f = Multiply(Multiply(Divide(128.0F, delta), power), Dot(n, d));
        }
        if (!applies) {
            continue;
        }
        if (size != nullptr) {
            f = Divide(f, *size);
        }
        const float product = static_cast<float>(LightByte(light.lightColor, channel) * base);
        const float light32768 = Multiply(Multiply(product, f), 0.000030517578125F);
        const long long sum = CutToInt32(Add(light32768, static_cast<float>(accumulator)));
        accumulator = static_cast<unsigned long long>(sum) & 0xFFFFFFFFULL;
    }
    return accumulator > 255 ? 255U : static_cast<unsigned>(accumulator);
}

std::uint32_t LitColor(const RenderFace& face, const Triple& p, const Triple& n, const float* size,
                       const LightTable& table, ColorPacker pack) {
    const unsigned r = LightChannel(RED, face.color, p, n, size, table.lights, table.count);
    const unsigned g = LightChannel(GREEN, face.color, p, n, size, table.lights, table.count);
    const unsigned b = LightChannel(BLUE, face.color, p, n, size, table.lights, table.count);
    return pack(r, g, b) & 0xFFFFU;
}

} // namespace

void ReferenceLightFace(RenderFace* face, const CornerNormals& normals, const LightTable& lights,
                        ColorPacker pack) {
    const bool live = (face->state & 1) != 0;
    const bool rejected = (face->state & (2 | 4)) != 0;
    const bool done = (face->state & 8) != 0;
    if (!live || rejected || done) {
        return;
    }
    face->state |= 8;
    const bool flat = (face->flags & 0x40) != 0;
    const bool gouraud = !flat && (face->flags & 0x80) != 0;
    if (flat) {
        const Triple v0 = PositionOf(face->work[0]);
        const Triple a = Minus(PositionOf(face->work[1]), v0);
        const Triple b = Minus(PositionOf(face->work[2]), v0);
        face->litColors[0] = LitColor(*face, v0, CrossProduct(a, b), &face->size, lights, pack);
    } else if (gouraud) {
        for (std::size_t i = 0; i < 3; ++i) {
            const Xyz<float>& n = normals.corners[i];
            face->litColors[i] = LitColor(*face, PositionOf(face->work[i]), {{n.x, n.y, n.z}},
                                          nullptr, lights, pack);
        }
    } else {
        face->litColors[0] = face->color;
    }
}

} // namespace ombrel::test
