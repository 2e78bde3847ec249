// Vectors, matrices and the degree tables: the floor of everything three-dimensional.
// Single precision; row vectors, multiplied on the left (v * M), translation in the last row.
// Angles are degrees. +X right, +Y up, +Z ahead. Outputs may not alias inputs except where said.
// Every sum and product is rounded to a single in the mode in force, in the order written here.
// What the per-frame loops call is inline.
#pragma once

#include <cstdint>

#include "base/single.h"
#include "math/xyz.h"

namespace ombrel {

// w is carried along; the three-component operations never read it and set it to 1 where they write
// a Vec3.
struct Vec3 {
    Single x, y, z, w;
};

struct Matrix4 {
    Single m[4][4]; // [row][column]
};

// A point and a direction (the camera's clip planes, light rays).
struct Ray {
    Single origin[3];
    Single direction[3];
};

extern const Matrix4 IdentityMatrix4;

// Entries 0..360 hold sine and cosine of whole degrees; entry 361 is never written and stays 0.
inline constexpr std::int32_t kTrigTableSize = 362;
extern Single SinTableDeg[kTrigTableSize];
extern Single CosTableDeg[kTrigTableSize];

// Written by InitTrigTables at start-up; read by SinDeg and CosDeg alone.
void InitTrigTables();  // stores to nearest, whatever mode is set
void ResetTrigTables(); // all zero

// Linear interpolation between whole degrees; truncates the angle to its degree. Any finite angle;
// an infinite one or NaN counts as 0.
Single SinDeg(Single degrees);
Single CosDeg(Single degrees);

// Sine, cosine and tangent of radians in double precision, our own, so that every system gets the
// same bits. Arguments up to 1e9 in size; the error is below 4 units in the last place (in either
// rounding mode), and close to a zero of the function below 1e-25. Beyond 1e9 the result is defined
// but means nothing.
Double SinRad(Double radians);
Double CosRad(Double radians);
Double TanRad(Double radians);

// b - a: the vector from a to b. The first argument is the one subtracted.
inline void Vec3Sub(const Vec3* a, const Vec3* b, Vec3* out) {
    const auto v = Difference(*a, *b);
    *out = {v.x, v.y, v.z, 1.0F};
}

inline void Vec3Add(const Vec3* a, const Vec3* b, Vec3* out) {
    const auto v = Sum(*a, *b);
    *out = {v.x, v.y, v.z, 1.0F};
}

inline Single Vec3Dot(const Vec3* a, const Vec3* b) {
    return Dot(*a, *b);
}

inline void Vec3Cross(const Vec3* a, const Vec3* b, Vec3* out) {
    const auto v = Cross(*a, *b);
    *out = {v.x, v.y, v.z, 1.0F};
}

Single Vec3Length(const Vec3* v);
Single Vec3FastLength(const Vec3* v);               // as FastLength of xyz.h
void Vec3Normalize(Vec3* v);                        // shorter than 1e-5: untouched
void Vec3NormalizeTo(const Vec3* v, Single out[3]); // shorter than 1e-5: zero

void Matrix4Set(Matrix4* out, const Single values[16]); // row-major
void Matrix4Multiply(const Matrix4* a, const Matrix4* b, Matrix4* out);
// v * m, all four components; the caller supplies w.
inline void Vec3TransformMatrix4(const Vec3* v, const Matrix4* m, Vec3* out) {
    const auto column = [v, m](int j) {
        const Single numbers[4] = {m->m[0][j], m->m[1][j], m->m[2][j], m->m[3][j]};
        return TimesRows(*v, numbers);
    };
    *out = {column(0), column(1), column(2), column(3)};
}
void Matrix4RotationXYZ(Single ax, Single ay, Single az, Matrix4* out); // X first, then Y, then Z
void RayInit(Ray* out, const Vec3* origin, const Vec3* direction, std::int32_t normalize);

} // namespace ombrel
