// 4x4 matrices: row-major, row vectors on the left, so A * B applies A first.
#include <cstring>

#include "math/rotation.h"
#include "math/vec3.h"

namespace ombrel {

const Matrix4 IdentityMatrix4 = {{{1.0F, 0.0F, 0.0F, 0.0F},
                                  {0.0F, 1.0F, 0.0F, 0.0F},
                                  {0.0F, 0.0F, 1.0F, 0.0F},
                                  {0.0F, 0.0F, 0.0F, 1.0F}}};

void Matrix4Set(Matrix4* out, const Single values[16]) {
    std::memcpy(out->m, values, sizeof(out->m));
}

void Matrix4Multiply(const Matrix4* a, const Matrix4* b, Matrix4* out) {
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            out->m[i][j] = a->m[i][0] * b->m[0][j] + a->m[i][1] * b->m[1][j] +
                           a->m[i][2] * b->m[2][j] + a->m[i][3] * b->m[3][j];
        }
    }
}

Matrix4 RotationX(Single s, Single c) {
    return {{{1.0F, 0.0F, 0.0F, 0.0F},
             {0.0F, c, s, 0.0F},
             {0.0F, -s, c, 0.0F},
             {0.0F, 0.0F, 0.0F, 1.0F}}};
}

Matrix4 RotationY(Single s, Single c) {
    return {{{c, 0.0F, -s, 0.0F},
             {0.0F, 1.0F, 0.0F, 0.0F},
             {s, 0.0F, c, 0.0F},
             {0.0F, 0.0F, 0.0F, 1.0F}}};
}

Matrix4 RotationZ(Single s, Single c) {
    return {{{c, s, 0.0F, 0.0F},
             {-s, c, 0.0F, 0.0F},
             {0.0F, 0.0F, 1.0F, 0.0F},
             {0.0F, 0.0F, 0.0F, 1.0F}}};
}

void Matrix4RotationXYZ(Single ax, Single ay, Single az, Matrix4* out) {
    using Rotation = Matrix4 (*)(Single s, Single c);
    struct Axis {
        Single angle;
        Rotation rotation;
    };
    const Axis axes[] = {{ax, RotationX}, {ay, RotationY}, {az, RotationZ}};

    // Multiply up the axes that take part; the first of them stands as it is.
    *out = IdentityMatrix4;
    bool first = true;
    for (const Axis& axis : axes) {
        const auto size = static_cast<double>(axis.angle < 0.0F ? -axis.angle : axis.angle);
        if (!(size > 0.00001)) {
            continue;
        }
        const Matrix4 turn = axis.rotation(SinDeg(axis.angle), CosDeg(axis.angle));
        if (first) {
            *out = turn;
        } else {
            const Matrix4 before = *out;
            Matrix4Multiply(&before, &turn, out);
        }
        first = false;
    }
}

} // namespace ombrel
