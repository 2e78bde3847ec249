// Vectors, matrices and the degree tables: the floor of everything three-dimensional.
// Single precision; row vectors, multiplied on the left (v * M), translation in the last row.
// Angles are degrees. +X right, +Y up, +Z ahead. Outputs may not alias inputs except where said.
#pragma once

#include <cstdint>

namespace ombrel {

// w is carried along; the three-component operations never read it and set it to 1 where they write
// a Vec3.
struct Vec3 {
    float x, y, z, w;
};

struct Matrix4 {
    float m[4][4]; // [row][column]
};

// A point and a direction (the camera's clip planes, light rays).
struct Ray {
    float origin[3];
    float direction[3];
};

extern const Matrix4 IdentityMatrix4;

// Entries 0..360 hold sine and cosine of whole degrees; entry 361 is never written and stays 0.
inline constexpr std::int32_t kTrigTableSize = 362;
extern float SinTableDeg[kTrigTableSize];
extern float CosTableDeg[kTrigTableSize];

void InitTrigTables();  // stores to nearest, whatever mode is set
void ResetTrigTables(); // all zero

// Linear interpolation between whole degrees; any finite angle. Truncates the angle to its degree.
float SinDeg(float degrees);
float CosDeg(float degrees);

// Sine, cosine and tangent of radians in double precision, our own, so that every system gets the
// same bits. Any finite argument up to about 1e9; error below 4 units in the last place.
double SinRad(double radians);
double CosRad(double radians);
double TanRad(double radians);

void Vec3Sub(const Vec3* a, const Vec3* b, Vec3* out); // b - a: the vector from a to b
void Vec3Add(const Vec3* a, const Vec3* b, Vec3* out);
float Vec3Dot(const Vec3* a, const Vec3* b);
void Vec3Cross(const Vec3* a, const Vec3* b, Vec3* out);
float Vec3Length(const Vec3* v);
// max + 11/32 mid + 1/4 min of the sizes, in 1/1024, cut to a whole number. Components up to
// 2,097,151; beyond, ToIntChop's value of an overflow is used and wraps.
float Vec3FastLength(const Vec3* v);
void Vec3Normalize(Vec3* v);                       // shorter than 1e-5: untouched
void Vec3NormalizeTo(const Vec3* v, float out[3]); // shorter than 1e-5: zero

void Matrix4Set(Matrix4* out, const float values[16]); // row-major
void Matrix4Multiply(const Matrix4* a, const Matrix4* b, Matrix4* out);
void Vec3TransformMatrix4(const Vec3* v, const Matrix4* m, Vec3* out); // all four components
void Matrix4RotationXYZ(float ax, float ay, float az, Matrix4* out);   // X first, then Y, then Z
void RayInit(Ray* out, const Vec3* origin, const Vec3* direction, std::int32_t normalize);

} // namespace ombrel
