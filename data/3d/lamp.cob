# lamp: made by art/build.sh, do not edit
Name lamp
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 129
-0.23 -0.23 -0.2
0.23 -0.23 -0.2
0.184 -0.184 0.14
-0.184 -0.184 0.14
0.23 -0.23 -0.2
0.23 0.23 -0.2
0.184 0.184 0.14
0.184 -0.184 0.14
0.23 0.23 -0.2
-0.23 0.23 -0.2
-0.184 0.184 0.14
0.184 0.184 0.14
-0.23 0.23 -0.2
-0.23 -0.23 -0.2
-0.184 -0.184 0.14
-0.184 0.184 0.14
-0.184 -0.184 0.14
0.184 -0.184 0.14
0.184 0.184 0.14
-0.184 0.184 0.14
0 0.08 0.1
0.0693 0.04 0.1
0.0693 -0.04 0.1
0 -0.08 0.1
-0.0693 -0.04 0.1
-0.0693 0.04 0.1
0 0.06 1.5
0.052 0.03 1.5
0.052 -0.03 1.5
0 -0.06 1.5
-0.052 -0.03 1.5
-0.052 0.03 1.5
0.0001 0 1.12
0.17 0 1.2
0.22 0 1.38
0.15 0 1.58
0.0001 0 1.66
0.0001 0.0001 1.12
0.1202 0.1202 1.2
0.1556 0.1556 1.38
0.1061 0.1061 1.58
0.0001 0.0001 1.66
0 0.0001 1.12
0 0.17 1.2
0 0.22 1.38
0 0.15 1.58
0 0.0001 1.66
-0.0001 0.0001 1.12
-0.1202 0.1202 1.2
-0.1556 0.1556 1.38
-0.1061 0.1061 1.58
-0.0001 0.0001 1.66
-0.0001 0 1.12
-0.17 0 1.2
-0.22 0 1.38
-0.15 0 1.58
-0.0001 0 1.66
-0.0001 -0.0001 1.12
-0.1202 -0.1202 1.2
-0.1556 -0.1556 1.38
-0.1061 -0.1061 1.58
-0.0001 -0.0001 1.66
0 -0.0001 1.12
0 -0.17 1.2
0 -0.22 1.38
0 -0.15 1.58
0 -0.0001 1.66
0.0001 -0.0001 1.12
0.1202 -0.1202 1.2
0.1556 -0.1556 1.38
0.1061 -0.1061 1.58
0.0001 -0.0001 1.66
0.46 0 1.58
0.36 0 1.72
0.16 0 1.82
0.05 0 1.86
0.0001 0 2.04
0.3253 0.3253 1.58
0.2546 0.2546 1.72
0.1131 0.1131 1.82
0.0354 0.0354 1.86
0.0001 0.0001 2.04
0 0.46 1.58
0 0.36 1.72
0 0.16 1.82
0 0.05 1.86
0 0.0001 2.04
-0.3253 0.3253 1.58
-0.2546 0.2546 1.72
-0.1131 0.1131 1.82
-0.0354 0.0354 1.86
-0.0001 0.0001 2.04
-0.46 0 1.58
-0.36 0 1.72
-0.16 0 1.82
-0.05 0 1.86
-0.0001 0 2.04
-0.3253 -0.3253 1.58
-0.2546 -0.2546 1.72
-0.1131 -0.1131 1.82
-0.0354 -0.0354 1.86
-0.0001 -0.0001 2.04
0 -0.46 1.58
0 -0.36 1.72
0 -0.16 1.82
0 -0.05 1.86
0 -0.0001 2.04
0.3253 -0.3253 1.58
0.2546 -0.2546 1.72
0.1131 -0.1131 1.82
0.0354 -0.0354 1.86
0.0001 -0.0001 2.04
0.0001 0 1.74
0.46 0 1.57
0.0001 0.0001 1.74
0.3253 0.3253 1.57
0 0.0001 1.74
0 0.46 1.57
-0.0001 0.0001 1.74
-0.3253 0.3253 1.57
-0.0001 0 1.74
-0.46 0 1.57
-0.0001 -0.0001 1.74
-0.3253 -0.3253 1.57
0 -0.0001 1.74
0 -0.46 1.57
0.0001 -0.0001 1.74
0.3253 -0.3253 1.57
0 0 2.8968
Texture Vertices 5
0.8889 0.873
0.6349 0.873
0.127 0.619
0.381 0.873
0.127 0.873
Faces 166
Face verts 3 flags 0 mat 0
<0,0> <2,0> <1,0>
Face verts 3 flags 0 mat 0
<0,0> <3,0> <2,0>
Face verts 3 flags 0 mat 0
<4,0> <6,0> <5,0>
Face verts 3 flags 0 mat 0
<4,0> <7,0> <6,0>
Face verts 3 flags 0 mat 0
<8,0> <10,0> <9,0>
Face verts 3 flags 0 mat 0
<8,0> <11,0> <10,0>
Face verts 3 flags 0 mat 0
<12,0> <14,0> <13,0>
Face verts 3 flags 0 mat 0
<12,0> <15,0> <14,0>
Face verts 3 flags 0 mat 0
<16,0> <18,0> <17,0>
Face verts 3 flags 0 mat 0
<16,0> <19,0> <18,0>
Face verts 3 flags 0 mat 0
<20,1> <27,1> <26,1>
Face verts 3 flags 0 mat 0
<20,1> <21,1> <27,1>
Face verts 3 flags 0 mat 0
<21,1> <22,1> <27,1>
Face verts 3 flags 0 mat 0
<27,1> <22,1> <28,1>
Face verts 3 flags 0 mat 0
<22,1> <29,1> <28,1>
Face verts 3 flags 0 mat 0
<22,1> <23,1> <29,1>
Face verts 3 flags 0 mat 0
<23,1> <24,1> <29,1>
Face verts 3 flags 0 mat 0
<29,1> <24,1> <30,1>
Face verts 3 flags 0 mat 0
<24,1> <31,1> <30,1>
Face verts 3 flags 0 mat 0
<24,1> <25,1> <31,1>
Face verts 3 flags 0 mat 0
<25,1> <20,1> <31,1>
Face verts 3 flags 0 mat 0
<31,1> <20,1> <26,1>
Face verts 3 flags 0 mat 1
<32,2> <38,2> <37,2>
Face verts 3 flags 0 mat 1
<32,2> <33,2> <38,2>
Face verts 3 flags 0 mat 1
<33,2> <34,2> <38,2>
Face verts 3 flags 0 mat 1
<38,2> <34,2> <39,2>
Face verts 3 flags 0 mat 1
<34,2> <40,2> <39,2>
Face verts 3 flags 0 mat 1
<34,2> <35,2> <40,2>
Face verts 3 flags 0 mat 1
<35,2> <36,2> <40,2>
Face verts 3 flags 0 mat 1
<40,2> <36,2> <41,2>
Face verts 3 flags 0 mat 1
<37,2> <38,2> <42,2>
Face verts 3 flags 0 mat 1
<42,2> <38,2> <43,2>
Face verts 3 flags 0 mat 1
<38,2> <44,2> <43,2>
Face verts 3 flags 0 mat 1
<38,2> <39,2> <44,2>
Face verts 3 flags 0 mat 1
<39,2> <40,2> <44,2>
Face verts 3 flags 0 mat 1
<44,2> <40,2> <45,2>
Face verts 3 flags 0 mat 1
<40,2> <46,2> <45,2>
Face verts 3 flags 0 mat 1
<40,2> <41,2> <46,2>
Face verts 3 flags 0 mat 1
<42,2> <48,2> <47,2>
Face verts 3 flags 0 mat 1
<42,2> <43,2> <48,2>
Face verts 3 flags 0 mat 1
<43,2> <44,2> <48,2>
Face verts 3 flags 0 mat 1
<48,2> <44,2> <49,2>
Face verts 3 flags 0 mat 1
<44,2> <50,2> <49,2>
Face verts 3 flags 0 mat 1
<44,2> <45,2> <50,2>
Face verts 3 flags 0 mat 1
<45,2> <46,2> <50,2>
Face verts 3 flags 0 mat 1
<50,2> <46,2> <51,2>
Face verts 3 flags 0 mat 1
<47,2> <48,2> <52,2>
Face verts 3 flags 0 mat 1
<52,2> <48,2> <53,2>
Face verts 3 flags 0 mat 1
<48,2> <54,2> <53,2>
Face verts 3 flags 0 mat 1
<48,2> <49,2> <54,2>
Face verts 3 flags 0 mat 1
<49,2> <50,2> <54,2>
Face verts 3 flags 0 mat 1
<54,2> <50,2> <55,2>
Face verts 3 flags 0 mat 1
<50,2> <56,2> <55,2>
Face verts 3 flags 0 mat 1
<50,2> <51,2> <56,2>
Face verts 3 flags 0 mat 1
<52,2> <58,2> <57,2>
Face verts 3 flags 0 mat 1
<52,2> <53,2> <58,2>
Face verts 3 flags 0 mat 1
<53,2> <54,2> <58,2>
Face verts 3 flags 0 mat 1
<58,2> <54,2> <59,2>
Face verts 3 flags 0 mat 1
<54,2> <60,2> <59,2>
Face verts 3 flags 0 mat 1
<54,2> <55,2> <60,2>
Face verts 3 flags 0 mat 1
<55,2> <56,2> <60,2>
Face verts 3 flags 0 mat 1
<60,2> <56,2> <61,2>
Face verts 3 flags 0 mat 1
<57,2> <58,2> <62,2>
Face verts 3 flags 0 mat 1
<62,2> <58,2> <63,2>
Face verts 3 flags 0 mat 1
<58,2> <64,2> <63,2>
Face verts 3 flags 0 mat 1
<58,2> <59,2> <64,2>
Face verts 3 flags 0 mat 1
<59,2> <60,2> <64,2>
Face verts 3 flags 0 mat 1
<64,2> <60,2> <65,2>
Face verts 3 flags 0 mat 1
<60,2> <66,2> <65,2>
Face verts 3 flags 0 mat 1
<60,2> <61,2> <66,2>
Face verts 3 flags 0 mat 1
<62,2> <68,2> <67,2>
Face verts 3 flags 0 mat 1
<62,2> <63,2> <68,2>
Face verts 3 flags 0 mat 1
<63,2> <64,2> <68,2>
Face verts 3 flags 0 mat 1
<68,2> <64,2> <69,2>
Face verts 3 flags 0 mat 1
<64,2> <70,2> <69,2>
Face verts 3 flags 0 mat 1
<64,2> <65,2> <70,2>
Face verts 3 flags 0 mat 1
<65,2> <66,2> <70,2>
Face verts 3 flags 0 mat 1
<70,2> <66,2> <71,2>
Face verts 3 flags 0 mat 1
<67,2> <68,2> <32,2>
Face verts 3 flags 0 mat 1
<32,2> <68,2> <33,2>
Face verts 3 flags 0 mat 1
<68,2> <34,2> <33,2>
Face verts 3 flags 0 mat 1
<68,2> <69,2> <34,2>
Face verts 3 flags 0 mat 1
<69,2> <70,2> <34,2>
Face verts 3 flags 0 mat 1
<34,2> <70,2> <35,2>
Face verts 3 flags 0 mat 1
<70,2> <36,2> <35,2>
Face verts 3 flags 0 mat 1
<70,2> <71,2> <36,2>
Face verts 3 flags 0 mat 0
<72,3> <78,3> <77,3>
Face verts 3 flags 0 mat 0
<72,3> <73,3> <78,3>
Face verts 3 flags 0 mat 0
<73,3> <74,3> <78,3>
Face verts 3 flags 0 mat 0
<78,3> <74,3> <79,3>
Face verts 3 flags 0 mat 0
<74,3> <80,3> <79,3>
Face verts 3 flags 0 mat 0
<74,3> <75,3> <80,3>
Face verts 3 flags 0 mat 0
<75,3> <76,3> <80,3>
Face verts 3 flags 0 mat 0
<80,3> <76,3> <81,3>
Face verts 3 flags 0 mat 0
<77,3> <78,3> <82,3>
Face verts 3 flags 0 mat 0
<82,3> <78,3> <83,3>
Face verts 3 flags 0 mat 0
<78,3> <84,3> <83,3>
Face verts 3 flags 0 mat 0
<78,3> <79,3> <84,3>
Face verts 3 flags 0 mat 0
<79,3> <80,3> <84,3>
Face verts 3 flags 0 mat 0
<84,3> <80,3> <85,3>
Face verts 3 flags 0 mat 0
<80,3> <86,3> <85,3>
Face verts 3 flags 0 mat 0
<80,3> <81,3> <86,3>
Face verts 3 flags 0 mat 0
<82,3> <88,3> <87,3>
Face verts 3 flags 0 mat 0
<82,3> <83,3> <88,3>
Face verts 3 flags 0 mat 0
<83,3> <84,3> <88,3>
Face verts 3 flags 0 mat 0
<88,3> <84,3> <89,3>
Face verts 3 flags 0 mat 0
<84,3> <90,3> <89,3>
Face verts 3 flags 0 mat 0
<84,3> <85,3> <90,3>
Face verts 3 flags 0 mat 0
<85,3> <86,3> <90,3>
Face verts 3 flags 0 mat 0
<90,3> <86,3> <91,3>
Face verts 3 flags 0 mat 0
<87,3> <88,3> <92,3>
Face verts 3 flags 0 mat 0
<92,3> <88,3> <93,3>
Face verts 3 flags 0 mat 0
<88,3> <94,3> <93,3>
Face verts 3 flags 0 mat 0
<88,3> <89,3> <94,3>
Face verts 3 flags 0 mat 0
<89,3> <90,3> <94,3>
Face verts 3 flags 0 mat 0
<94,3> <90,3> <95,3>
Face verts 3 flags 0 mat 0
<90,3> <96,3> <95,3>
Face verts 3 flags 0 mat 0
<90,3> <91,3> <96,3>
Face verts 3 flags 0 mat 0
<92,3> <98,3> <97,3>
Face verts 3 flags 0 mat 0
<92,3> <93,3> <98,3>
Face verts 3 flags 0 mat 0
<93,3> <94,3> <98,3>
Face verts 3 flags 0 mat 0
<98,3> <94,3> <99,3>
Face verts 3 flags 0 mat 0
<94,3> <100,3> <99,3>
Face verts 3 flags 0 mat 0
<94,3> <95,3> <100,3>
Face verts 3 flags 0 mat 0
<95,3> <96,3> <100,3>
Face verts 3 flags 0 mat 0
<100,3> <96,3> <101,3>
Face verts 3 flags 0 mat 0
<97,3> <98,3> <102,3>
Face verts 3 flags 0 mat 0
<102,3> <98,3> <103,3>
Face verts 3 flags 0 mat 0
<98,3> <104,3> <103,3>
Face verts 3 flags 0 mat 0
<98,3> <99,3> <104,3>
Face verts 3 flags 0 mat 0
<99,3> <100,3> <104,3>
Face verts 3 flags 0 mat 0
<104,3> <100,3> <105,3>
Face verts 3 flags 0 mat 0
<100,3> <106,3> <105,3>
Face verts 3 flags 0 mat 0
<100,3> <101,3> <106,3>
Face verts 3 flags 0 mat 0
<102,3> <108,3> <107,3>
Face verts 3 flags 0 mat 0
<102,3> <103,3> <108,3>
Face verts 3 flags 0 mat 0
<103,3> <104,3> <108,3>
Face verts 3 flags 0 mat 0
<108,3> <104,3> <109,3>
Face verts 3 flags 0 mat 0
<104,3> <110,3> <109,3>
Face verts 3 flags 0 mat 0
<104,3> <105,3> <110,3>
Face verts 3 flags 0 mat 0
<105,3> <106,3> <110,3>
Face verts 3 flags 0 mat 0
<110,3> <106,3> <111,3>
Face verts 3 flags 0 mat 0
<107,3> <108,3> <72,3>
Face verts 3 flags 0 mat 0
<72,3> <108,3> <73,3>
Face verts 3 flags 0 mat 0
<108,3> <74,3> <73,3>
Face verts 3 flags 0 mat 0
<108,3> <109,3> <74,3>
Face verts 3 flags 0 mat 0
<109,3> <110,3> <74,3>
Face verts 3 flags 0 mat 0
<74,3> <110,3> <75,3>
Face verts 3 flags 0 mat 0
<110,3> <76,3> <75,3>
Face verts 3 flags 0 mat 0
<110,3> <111,3> <76,3>
Face verts 3 flags 0 mat 0
<112,4> <115,4> <114,4>
Face verts 3 flags 0 mat 0
<112,4> <113,4> <115,4>
Face verts 3 flags 0 mat 0
<114,4> <115,4> <116,4>
Face verts 3 flags 0 mat 0
<116,4> <115,4> <117,4>
Face verts 3 flags 0 mat 0
<116,4> <119,4> <118,4>
Face verts 3 flags 0 mat 0
<116,4> <117,4> <119,4>
Face verts 3 flags 0 mat 0
<118,4> <119,4> <120,4>
Face verts 3 flags 0 mat 0
<120,4> <119,4> <121,4>
Face verts 3 flags 0 mat 0
<120,4> <123,4> <122,4>
Face verts 3 flags 0 mat 0
<120,4> <121,4> <123,4>
Face verts 3 flags 0 mat 0
<122,4> <123,4> <124,4>
Face verts 3 flags 0 mat 0
<124,4> <123,4> <125,4>
Face verts 3 flags 0 mat 0
<124,4> <127,4> <126,4>
Face verts 3 flags 0 mat 0
<124,4> <125,4> <127,4>
Face verts 3 flags 0 mat 0
<126,4> <127,4> <112,4>
Face verts 3 flags 0 mat 0
<112,4> <127,4> <113,4>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\lamp.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "matte"
mat# 1
rgb 1,0.8284,0.4833
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "constant"
