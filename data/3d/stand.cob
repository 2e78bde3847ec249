# stand: made by art/build.sh, do not edit
Name stand
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 275
0 0.07 -0.2
0.0606 0.035 -0.2
0.0606 -0.035 -0.2
0 -0.07 -0.2
-0.0606 -0.035 -0.2
-0.0606 0.035 -0.2
0 0.06 2.62
0.052 0.03 2.62
0.052 -0.03 2.62
0 -0.06 2.62
-0.052 -0.03 2.62
-0.052 0.03 2.62
0.34 0 -0.16
0.3 0 0.1
0.08 0 0.16
0.2404 0.2404 -0.16
0.2121 0.2121 0.1
0.0566 0.0566 0.16
0 0.34 -0.16
0 0.3 0.1
0 0.08 0.16
-0.2404 0.2404 -0.16
-0.2121 0.2121 0.1
-0.0566 0.0566 0.16
-0.34 0 -0.16
-0.3 0 0.1
-0.08 0 0.16
-0.2404 -0.2404 -0.16
-0.2121 -0.2121 0.1
-0.0566 -0.0566 0.16
0 -0.34 -0.16
0 -0.3 0.1
0 -0.08 0.16
0.2404 -0.2404 -0.16
0.2121 -0.2121 0.1
0.0566 -0.0566 0.16
0.62 0 0.7
0.62 0 0.78
0.5016 0.3644 0.7
0.5016 0.3644 0.78
0.1916 0.5897 0.7
0.1916 0.5897 0.78
-0.1916 0.5897 0.7
-0.1916 0.5897 0.78
-0.5016 0.3644 0.7
-0.5016 0.3644 0.78
-0.62 0 0.7
-0.62 0 0.78
-0.5016 -0.3644 0.7
-0.5016 -0.3644 0.78
-0.1916 -0.5897 0.7
-0.1916 -0.5897 0.78
0.1916 -0.5897 0.7
0.1916 -0.5897 0.78
0.5016 -0.3644 0.7
0.5016 -0.3644 0.78
0.62 0 0.78
0.0001 0 0.79
0.5016 0.3644 0.78
0.0001 0.0001 0.79
0.1916 0.5897 0.78
0 0.0001 0.79
-0.1916 0.5897 0.78
0 0.0001 0.79
-0.5016 0.3644 0.78
-0.0001 0.0001 0.79
-0.62 0 0.78
-0.0001 0 0.79
-0.5016 -0.3644 0.78
-0.0001 -0.0001 0.79
-0.1916 -0.5897 0.78
0 -0.0001 0.79
0.1916 -0.5897 0.78
0 -0.0001 0.79
0.5016 -0.3644 0.78
0.0001 -0.0001 0.79
0.0001 0 0.69
0.62 0 0.7
0.0001 0.0001 0.69
0.5016 0.3644 0.7
0 0.0001 0.69
0.1916 0.5897 0.7
0 0.0001 0.69
-0.1916 0.5897 0.7
-0.0001 0.0001 0.69
-0.5016 0.3644 0.7
-0.0001 0 0.69
-0.62 0 0.7
-0.0001 -0.0001 0.69
-0.5016 -0.3644 0.7
0 -0.0001 0.69
-0.1916 -0.5897 0.7
0 -0.0001 0.69
0.1916 -0.5897 0.7
0.0001 -0.0001 0.69
0.5016 -0.3644 0.7
1.68 0 1.82
1.66 0 2.12
1.1 0 2.44
0.46 0 2.62
0.005 0 2.68
1.1879 1.1879 1.82
1.1738 1.1738 2.12
0.7778 0.7778 2.44
0.3253 0.3253 2.62
0.0035 0.0035 2.68
1.1879 1.1879 1.82
1.1738 1.1738 2.12
0.7778 0.7778 2.44
0.3253 0.3253 2.62
0.0035 0.0035 2.68
0 1.68 1.82
0 1.66 2.12
0 1.1 2.44
0 0.46 2.62
0 0.005 2.68
0 1.68 1.82
0 1.66 2.12
0 1.1 2.44
0 0.46 2.62
0 0.005 2.68
-1.1879 1.1879 1.82
-1.1738 1.1738 2.12
-0.7778 0.7778 2.44
-0.3253 0.3253 2.62
-0.0035 0.0035 2.68
-1.1879 1.1879 1.82
-1.1738 1.1738 2.12
-0.7778 0.7778 2.44
-0.3253 0.3253 2.62
-0.0035 0.0035 2.68
-1.68 0 1.82
-1.66 0 2.12
-1.1 0 2.44
-0.46 0 2.62
-0.005 0 2.68
-1.68 0 1.82
-1.66 0 2.12
-1.1 0 2.44
-0.46 0 2.62
-0.005 0 2.68
-1.1879 -1.1879 1.82
-1.1738 -1.1738 2.12
-0.7778 -0.7778 2.44
-0.3253 -0.3253 2.62
-0.0035 -0.0035 2.68
-1.1879 -1.1879 1.82
-1.1738 -1.1738 2.12
-0.7778 -0.7778 2.44
-0.3253 -0.3253 2.62
-0.0035 -0.0035 2.68
0 -1.68 1.82
0 -1.66 2.12
0 -1.1 2.44
0 -0.46 2.62
0 -0.005 2.68
0 -1.68 1.82
0 -1.66 2.12
0 -1.1 2.44
0 -0.46 2.62
0 -0.005 2.68
1.1879 -1.1879 1.82
1.1738 -1.1738 2.12
0.7778 -0.7778 2.44
0.3253 -0.3253 2.62
0.0035 -0.0035 2.68
1.1879 -1.1879 1.82
1.1738 -1.1738 2.12
0.7778 -0.7778 2.44
0.3253 -0.3253 2.62
0.0035 -0.0035 2.68
1.68 0 1.82
1.66 0 2.12
1.1 0 2.44
0.46 0 2.62
0.005 0 2.68
1.6548 0 1.77
1.6351 0 2.07
1.0835 0 2.39
0.4531 0 2.57
0.0049 0 2.63
1.1701 1.1701 1.77
1.1562 1.1562 2.07
0.7662 0.7662 2.39
0.3204 0.3204 2.57
0.0035 0.0035 2.63
1.1701 1.1701 1.77
1.1562 1.1562 2.07
0.7662 0.7662 2.39
0.3204 0.3204 2.57
0.0035 0.0035 2.63
0 1.6548 1.77
0 1.6351 2.07
0 1.0835 2.39
0 0.4531 2.57
0 0.0049 2.63
0 1.6548 1.77
0 1.6351 2.07
0 1.0835 2.39
0 0.4531 2.57
0 0.0049 2.63
-1.1701 1.1701 1.77
-1.1562 1.1562 2.07
-0.7662 0.7662 2.39
-0.3204 0.3204 2.57
-0.0035 0.0035 2.63
-1.1701 1.1701 1.77
-1.1562 1.1562 2.07
-0.7662 0.7662 2.39
-0.3204 0.3204 2.57
-0.0035 0.0035 2.63
-1.6548 0 1.77
-1.6351 0 2.07
-1.0835 0 2.39
-0.4531 0 2.57
-0.0049 0 2.63
-1.6548 0 1.77
-1.6351 0 2.07
-1.0835 0 2.39
-0.4531 0 2.57
-0.0049 0 2.63
-1.1701 -1.1701 1.77
-1.1562 -1.1562 2.07
-0.7662 -0.7662 2.39
-0.3204 -0.3204 2.57
-0.0035 -0.0035 2.63
-1.1701 -1.1701 1.77
-1.1562 -1.1562 2.07
-0.7662 -0.7662 2.39
-0.3204 -0.3204 2.57
-0.0035 -0.0035 2.63
0 -1.6548 1.77
0 -1.6351 2.07
0 -1.0835 2.39
0 -0.4531 2.57
0 -0.0049 2.63
0 -1.6548 1.77
0 -1.6351 2.07
0 -1.0835 2.39
0 -0.4531 2.57
0 -0.0049 2.63
1.1701 -1.1701 1.77
1.1562 -1.1562 2.07
0.7662 -0.7662 2.39
0.3204 -0.3204 2.57
0.0035 -0.0035 2.63
1.1701 -1.1701 1.77
1.1562 -1.1562 2.07
0.7662 -0.7662 2.39
0.3204 -0.3204 2.57
0.0035 -0.0035 2.63
1.6548 0 1.77
1.6351 0 2.07
1.0835 0 2.39
0.4531 0 2.57
0.0049 0 2.63
0.09 0 2.62
0.12 0 2.76
0.0001 0 2.92
0.045 0.0779 2.62
0.06 0.1039 2.76
0.0001 0.0001 2.92
-0.045 0.0779 2.62
-0.06 0.1039 2.76
0 0.0001 2.92
-0.09 0 2.62
-0.12 0 2.76
-0.0001 0 2.92
-0.045 -0.0779 2.62
-0.06 -0.1039 2.76
-0.0001 -0.0001 2.92
0.045 -0.0779 2.62
0.06 -0.1039 2.76
0.0001 -0.0001 2.92
0 0 4.1464
Texture Vertices 5
0.127 0.873
0.381 0.873
0.127 0.619
0.8889 0.873
0.6349 0.873
Faces 256
Face verts 3 flags 0 mat 0
<0,0> <7,0> <6,0>
Face verts 3 flags 0 mat 0
<0,0> <1,0> <7,0>
Face verts 3 flags 0 mat 0
<1,0> <2,0> <7,0>
Face verts 3 flags 0 mat 0
<7,0> <2,0> <8,0>
Face verts 3 flags 0 mat 0
<2,0> <9,0> <8,0>
Face verts 3 flags 0 mat 0
<2,0> <3,0> <9,0>
Face verts 3 flags 0 mat 0
<3,0> <4,0> <9,0>
Face verts 3 flags 0 mat 0
<9,0> <4,0> <10,0>
Face verts 3 flags 0 mat 0
<4,0> <11,0> <10,0>
Face verts 3 flags 0 mat 0
<4,0> <5,0> <11,0>
Face verts 3 flags 0 mat 0
<5,0> <0,0> <11,0>
Face verts 3 flags 0 mat 0
<11,0> <0,0> <6,0>
Face verts 3 flags 0 mat 0
<12,1> <16,1> <15,1>
Face verts 3 flags 0 mat 0
<12,1> <13,1> <16,1>
Face verts 3 flags 0 mat 0
<13,1> <14,1> <16,1>
Face verts 3 flags 0 mat 0
<16,1> <14,1> <17,1>
Face verts 3 flags 0 mat 0
<15,1> <16,1> <18,1>
Face verts 3 flags 0 mat 0
<18,1> <16,1> <19,1>
Face verts 3 flags 0 mat 0
<16,1> <20,1> <19,1>
Face verts 3 flags 0 mat 0
<16,1> <17,1> <20,1>
Face verts 3 flags 0 mat 0
<18,1> <22,1> <21,1>
Face verts 3 flags 0 mat 0
<18,1> <19,1> <22,1>
Face verts 3 flags 0 mat 0
<19,1> <20,1> <22,1>
Face verts 3 flags 0 mat 0
<22,1> <20,1> <23,1>
Face verts 3 flags 0 mat 0
<21,1> <22,1> <24,1>
Face verts 3 flags 0 mat 0
<24,1> <22,1> <25,1>
Face verts 3 flags 0 mat 0
<22,1> <26,1> <25,1>
Face verts 3 flags 0 mat 0
<22,1> <23,1> <26,1>
Face verts 3 flags 0 mat 0
<24,1> <28,1> <27,1>
Face verts 3 flags 0 mat 0
<24,1> <25,1> <28,1>
Face verts 3 flags 0 mat 0
<25,1> <26,1> <28,1>
Face verts 3 flags 0 mat 0
<28,1> <26,1> <29,1>
Face verts 3 flags 0 mat 0
<27,1> <28,1> <30,1>
Face verts 3 flags 0 mat 0
<30,1> <28,1> <31,1>
Face verts 3 flags 0 mat 0
<28,1> <32,1> <31,1>
Face verts 3 flags 0 mat 0
<28,1> <29,1> <32,1>
Face verts 3 flags 0 mat 0
<30,1> <34,1> <33,1>
Face verts 3 flags 0 mat 0
<30,1> <31,1> <34,1>
Face verts 3 flags 0 mat 0
<31,1> <32,1> <34,1>
Face verts 3 flags 0 mat 0
<34,1> <32,1> <35,1>
Face verts 3 flags 0 mat 0
<33,1> <34,1> <12,1>
Face verts 3 flags 0 mat 0
<12,1> <34,1> <13,1>
Face verts 3 flags 0 mat 0
<34,1> <14,1> <13,1>
Face verts 3 flags 0 mat 0
<34,1> <35,1> <14,1>
Face verts 3 flags 0 mat 0
<36,2> <39,2> <38,2>
Face verts 3 flags 0 mat 0
<36,2> <37,2> <39,2>
Face verts 3 flags 0 mat 0
<38,2> <39,2> <40,2>
Face verts 3 flags 0 mat 0
<40,2> <39,2> <41,2>
Face verts 3 flags 0 mat 0
<40,2> <43,2> <42,2>
Face verts 3 flags 0 mat 0
<40,2> <41,2> <43,2>
Face verts 3 flags 0 mat 0
<42,2> <43,2> <44,2>
Face verts 3 flags 0 mat 0
<44,2> <43,2> <45,2>
Face verts 3 flags 0 mat 0
<44,2> <47,2> <46,2>
Face verts 3 flags 0 mat 0
<44,2> <45,2> <47,2>
Face verts 3 flags 0 mat 0
<46,2> <47,2> <48,2>
Face verts 3 flags 0 mat 0
<48,2> <47,2> <49,2>
Face verts 3 flags 0 mat 0
<48,2> <51,2> <50,2>
Face verts 3 flags 0 mat 0
<48,2> <49,2> <51,2>
Face verts 3 flags 0 mat 0
<50,2> <51,2> <52,2>
Face verts 3 flags 0 mat 0
<52,2> <51,2> <53,2>
Face verts 3 flags 0 mat 0
<52,2> <55,2> <54,2>
Face verts 3 flags 0 mat 0
<52,2> <53,2> <55,2>
Face verts 3 flags 0 mat 0
<54,2> <55,2> <36,2>
Face verts 3 flags 0 mat 0
<36,2> <55,2> <37,2>
Face verts 3 flags 0 mat 0
<56,2> <59,2> <58,2>
Face verts 3 flags 0 mat 0
<56,2> <57,2> <59,2>
Face verts 3 flags 0 mat 0
<58,2> <59,2> <60,2>
Face verts 3 flags 0 mat 0
<60,2> <59,2> <61,2>
Face verts 3 flags 0 mat 0
<60,2> <63,2> <62,2>
Face verts 3 flags 0 mat 0
<60,2> <61,2> <63,2>
Face verts 3 flags 0 mat 0
<62,2> <63,2> <64,2>
Face verts 3 flags 0 mat 0
<64,2> <63,2> <65,2>
Face verts 3 flags 0 mat 0
<64,2> <67,2> <66,2>
Face verts 3 flags 0 mat 0
<64,2> <65,2> <67,2>
Face verts 3 flags 0 mat 0
<66,2> <67,2> <68,2>
Face verts 3 flags 0 mat 0
<68,2> <67,2> <69,2>
Face verts 3 flags 0 mat 0
<68,2> <71,2> <70,2>
Face verts 3 flags 0 mat 0
<68,2> <69,2> <71,2>
Face verts 3 flags 0 mat 0
<70,2> <71,2> <72,2>
Face verts 3 flags 0 mat 0
<72,2> <71,2> <73,2>
Face verts 3 flags 0 mat 0
<72,2> <75,2> <74,2>
Face verts 3 flags 0 mat 0
<72,2> <73,2> <75,2>
Face verts 3 flags 0 mat 0
<74,2> <75,2> <56,2>
Face verts 3 flags 0 mat 0
<56,2> <75,2> <57,2>
Face verts 3 flags 0 mat 0
<76,0> <79,0> <78,0>
Face verts 3 flags 0 mat 0
<76,0> <77,0> <79,0>
Face verts 3 flags 0 mat 0
<78,0> <79,0> <80,0>
Face verts 3 flags 0 mat 0
<80,0> <79,0> <81,0>
Face verts 3 flags 0 mat 0
<80,0> <83,0> <82,0>
Face verts 3 flags 0 mat 0
<80,0> <81,0> <83,0>
Face verts 3 flags 0 mat 0
<82,0> <83,0> <84,0>
Face verts 3 flags 0 mat 0
<84,0> <83,0> <85,0>
Face verts 3 flags 0 mat 0
<84,0> <87,0> <86,0>
Face verts 3 flags 0 mat 0
<84,0> <85,0> <87,0>
Face verts 3 flags 0 mat 0
<86,0> <87,0> <88,0>
Face verts 3 flags 0 mat 0
<88,0> <87,0> <89,0>
Face verts 3 flags 0 mat 0
<88,0> <91,0> <90,0>
Face verts 3 flags 0 mat 0
<88,0> <89,0> <91,0>
Face verts 3 flags 0 mat 0
<90,0> <91,0> <92,0>
Face verts 3 flags 0 mat 0
<92,0> <91,0> <93,0>
Face verts 3 flags 0 mat 0
<92,0> <95,0> <94,0>
Face verts 3 flags 0 mat 0
<92,0> <93,0> <95,0>
Face verts 3 flags 0 mat 0
<94,0> <95,0> <76,0>
Face verts 3 flags 0 mat 0
<76,0> <95,0> <77,0>
Face verts 3 flags 0 mat 0
<96,2> <102,2> <101,2>
Face verts 3 flags 0 mat 0
<96,2> <97,2> <102,2>
Face verts 3 flags 0 mat 0
<97,2> <98,2> <102,2>
Face verts 3 flags 0 mat 0
<102,2> <98,2> <103,2>
Face verts 3 flags 0 mat 0
<98,2> <104,2> <103,2>
Face verts 3 flags 0 mat 0
<98,2> <99,2> <104,2>
Face verts 3 flags 0 mat 0
<99,2> <100,2> <104,2>
Face verts 3 flags 0 mat 0
<104,2> <100,2> <105,2>
Face verts 3 flags 0 mat 0
<106,3> <112,3> <111,3>
Face verts 3 flags 0 mat 0
<106,3> <107,3> <112,3>
Face verts 3 flags 0 mat 0
<107,3> <108,3> <112,3>
Face verts 3 flags 0 mat 0
<112,3> <108,3> <113,3>
Face verts 3 flags 0 mat 0
<108,3> <114,3> <113,3>
Face verts 3 flags 0 mat 0
<108,3> <109,3> <114,3>
Face verts 3 flags 0 mat 0
<109,3> <110,3> <114,3>
Face verts 3 flags 0 mat 0
<114,3> <110,3> <115,3>
Face verts 3 flags 0 mat 0
<116,2> <122,2> <121,2>
Face verts 3 flags 0 mat 0
<116,2> <117,2> <122,2>
Face verts 3 flags 0 mat 0
<117,2> <118,2> <122,2>
Face verts 3 flags 0 mat 0
<122,2> <118,2> <123,2>
Face verts 3 flags 0 mat 0
<118,2> <124,2> <123,2>
Face verts 3 flags 0 mat 0
<118,2> <119,2> <124,2>
Face verts 3 flags 0 mat 0
<119,2> <120,2> <124,2>
Face verts 3 flags 0 mat 0
<124,2> <120,2> <125,2>
Face verts 3 flags 0 mat 0
<126,3> <132,3> <131,3>
Face verts 3 flags 0 mat 0
<126,3> <127,3> <132,3>
Face verts 3 flags 0 mat 0
<127,3> <128,3> <132,3>
Face verts 3 flags 0 mat 0
<132,3> <128,3> <133,3>
Face verts 3 flags 0 mat 0
<128,3> <134,3> <133,3>
Face verts 3 flags 0 mat 0
<128,3> <129,3> <134,3>
Face verts 3 flags 0 mat 0
<129,3> <130,3> <134,3>
Face verts 3 flags 0 mat 0
<134,3> <130,3> <135,3>
Face verts 3 flags 0 mat 0
<136,2> <142,2> <141,2>
Face verts 3 flags 0 mat 0
<136,2> <137,2> <142,2>
Face verts 3 flags 0 mat 0
<137,2> <138,2> <142,2>
Face verts 3 flags 0 mat 0
<142,2> <138,2> <143,2>
Face verts 3 flags 0 mat 0
<138,2> <144,2> <143,2>
Face verts 3 flags 0 mat 0
<138,2> <139,2> <144,2>
Face verts 3 flags 0 mat 0
<139,2> <140,2> <144,2>
Face verts 3 flags 0 mat 0
<144,2> <140,2> <145,2>
Face verts 3 flags 0 mat 0
<146,3> <152,3> <151,3>
Face verts 3 flags 0 mat 0
<146,3> <147,3> <152,3>
Face verts 3 flags 0 mat 0
<147,3> <148,3> <152,3>
Face verts 3 flags 0 mat 0
<152,3> <148,3> <153,3>
Face verts 3 flags 0 mat 0
<148,3> <154,3> <153,3>
Face verts 3 flags 0 mat 0
<148,3> <149,3> <154,3>
Face verts 3 flags 0 mat 0
<149,3> <150,3> <154,3>
Face verts 3 flags 0 mat 0
<154,3> <150,3> <155,3>
Face verts 3 flags 0 mat 0
<156,2> <162,2> <161,2>
Face verts 3 flags 0 mat 0
<156,2> <157,2> <162,2>
Face verts 3 flags 0 mat 0
<157,2> <158,2> <162,2>
Face verts 3 flags 0 mat 0
<162,2> <158,2> <163,2>
Face verts 3 flags 0 mat 0
<158,2> <164,2> <163,2>
Face verts 3 flags 0 mat 0
<158,2> <159,2> <164,2>
Face verts 3 flags 0 mat 0
<159,2> <160,2> <164,2>
Face verts 3 flags 0 mat 0
<164,2> <160,2> <165,2>
Face verts 3 flags 0 mat 0
<166,3> <172,3> <171,3>
Face verts 3 flags 0 mat 0
<166,3> <167,3> <172,3>
Face verts 3 flags 0 mat 0
<167,3> <168,3> <172,3>
Face verts 3 flags 0 mat 0
<172,3> <168,3> <173,3>
Face verts 3 flags 0 mat 0
<168,3> <174,3> <173,3>
Face verts 3 flags 0 mat 0
<168,3> <169,3> <174,3>
Face verts 3 flags 0 mat 0
<169,3> <170,3> <174,3>
Face verts 3 flags 0 mat 0
<174,3> <170,3> <175,3>
Face verts 3 flags 0 mat 0
<176,2> <181,2> <182,2>
Face verts 3 flags 0 mat 0
<176,2> <182,2> <177,2>
Face verts 3 flags 0 mat 0
<177,2> <182,2> <178,2>
Face verts 3 flags 0 mat 0
<182,2> <183,2> <178,2>
Face verts 3 flags 0 mat 0
<178,2> <183,2> <184,2>
Face verts 3 flags 0 mat 0
<178,2> <184,2> <179,2>
Face verts 3 flags 0 mat 0
<179,2> <184,2> <180,2>
Face verts 3 flags 0 mat 0
<184,2> <185,2> <180,2>
Face verts 3 flags 0 mat 0
<186,3> <191,3> <192,3>
Face verts 3 flags 0 mat 0
<186,3> <192,3> <187,3>
Face verts 3 flags 0 mat 0
<187,3> <192,3> <188,3>
Face verts 3 flags 0 mat 0
<192,3> <193,3> <188,3>
Face verts 3 flags 0 mat 0
<188,3> <193,3> <194,3>
Face verts 3 flags 0 mat 0
<188,3> <194,3> <189,3>
Face verts 3 flags 0 mat 0
<189,3> <194,3> <190,3>
Face verts 3 flags 0 mat 0
<194,3> <195,3> <190,3>
Face verts 3 flags 0 mat 0
<196,2> <201,2> <202,2>
Face verts 3 flags 0 mat 0
<196,2> <202,2> <197,2>
Face verts 3 flags 0 mat 0
<197,2> <202,2> <198,2>
Face verts 3 flags 0 mat 0
<202,2> <203,2> <198,2>
Face verts 3 flags 0 mat 0
<198,2> <203,2> <204,2>
Face verts 3 flags 0 mat 0
<198,2> <204,2> <199,2>
Face verts 3 flags 0 mat 0
<199,2> <204,2> <200,2>
Face verts 3 flags 0 mat 0
<204,2> <205,2> <200,2>
Face verts 3 flags 0 mat 0
<206,3> <211,3> <212,3>
Face verts 3 flags 0 mat 0
<206,3> <212,3> <207,3>
Face verts 3 flags 0 mat 0
<207,3> <212,3> <208,3>
Face verts 3 flags 0 mat 0
<212,3> <213,3> <208,3>
Face verts 3 flags 0 mat 0
<208,3> <213,3> <214,3>
Face verts 3 flags 0 mat 0
<208,3> <214,3> <209,3>
Face verts 3 flags 0 mat 0
<209,3> <214,3> <210,3>
Face verts 3 flags 0 mat 0
<214,3> <215,3> <210,3>
Face verts 3 flags 0 mat 0
<216,2> <221,2> <222,2>
Face verts 3 flags 0 mat 0
<216,2> <222,2> <217,2>
Face verts 3 flags 0 mat 0
<217,2> <222,2> <218,2>
Face verts 3 flags 0 mat 0
<222,2> <223,2> <218,2>
Face verts 3 flags 0 mat 0
<218,2> <223,2> <224,2>
Face verts 3 flags 0 mat 0
<218,2> <224,2> <219,2>
Face verts 3 flags 0 mat 0
<219,2> <224,2> <220,2>
Face verts 3 flags 0 mat 0
<224,2> <225,2> <220,2>
Face verts 3 flags 0 mat 0
<226,3> <231,3> <232,3>
Face verts 3 flags 0 mat 0
<226,3> <232,3> <227,3>
Face verts 3 flags 0 mat 0
<227,3> <232,3> <228,3>
Face verts 3 flags 0 mat 0
<232,3> <233,3> <228,3>
Face verts 3 flags 0 mat 0
<228,3> <233,3> <234,3>
Face verts 3 flags 0 mat 0
<228,3> <234,3> <229,3>
Face verts 3 flags 0 mat 0
<229,3> <234,3> <230,3>
Face verts 3 flags 0 mat 0
<234,3> <235,3> <230,3>
Face verts 3 flags 0 mat 0
<236,2> <241,2> <242,2>
Face verts 3 flags 0 mat 0
<236,2> <242,2> <237,2>
Face verts 3 flags 0 mat 0
<237,2> <242,2> <238,2>
Face verts 3 flags 0 mat 0
<242,2> <243,2> <238,2>
Face verts 3 flags 0 mat 0
<238,2> <243,2> <244,2>
Face verts 3 flags 0 mat 0
<238,2> <244,2> <239,2>
Face verts 3 flags 0 mat 0
<239,2> <244,2> <240,2>
Face verts 3 flags 0 mat 0
<244,2> <245,2> <240,2>
Face verts 3 flags 0 mat 0
<246,3> <251,3> <252,3>
Face verts 3 flags 0 mat 0
<246,3> <252,3> <247,3>
Face verts 3 flags 0 mat 0
<247,3> <252,3> <248,3>
Face verts 3 flags 0 mat 0
<252,3> <253,3> <248,3>
Face verts 3 flags 0 mat 0
<248,3> <253,3> <254,3>
Face verts 3 flags 0 mat 0
<248,3> <254,3> <249,3>
Face verts 3 flags 0 mat 0
<249,3> <254,3> <250,3>
Face verts 3 flags 0 mat 0
<254,3> <255,3> <250,3>
Face verts 3 flags 0 mat 0
<256,4> <260,4> <259,4>
Face verts 3 flags 0 mat 0
<256,4> <257,4> <260,4>
Face verts 3 flags 0 mat 0
<257,4> <258,4> <260,4>
Face verts 3 flags 0 mat 0
<260,4> <258,4> <261,4>
Face verts 3 flags 0 mat 0
<259,4> <260,4> <262,4>
Face verts 3 flags 0 mat 0
<262,4> <260,4> <263,4>
Face verts 3 flags 0 mat 0
<260,4> <264,4> <263,4>
Face verts 3 flags 0 mat 0
<260,4> <261,4> <264,4>
Face verts 3 flags 0 mat 0
<262,4> <266,4> <265,4>
Face verts 3 flags 0 mat 0
<262,4> <263,4> <266,4>
Face verts 3 flags 0 mat 0
<263,4> <264,4> <266,4>
Face verts 3 flags 0 mat 0
<266,4> <264,4> <267,4>
Face verts 3 flags 0 mat 0
<265,4> <266,4> <268,4>
Face verts 3 flags 0 mat 0
<268,4> <266,4> <269,4>
Face verts 3 flags 0 mat 0
<266,4> <270,4> <269,4>
Face verts 3 flags 0 mat 0
<266,4> <267,4> <270,4>
Face verts 3 flags 0 mat 0
<268,4> <272,4> <271,4>
Face verts 3 flags 0 mat 0
<268,4> <269,4> <272,4>
Face verts 3 flags 0 mat 0
<269,4> <270,4> <272,4>
Face verts 3 flags 0 mat 0
<272,4> <270,4> <273,4>
Face verts 3 flags 0 mat 0
<271,4> <272,4> <256,4>
Face verts 3 flags 0 mat 0
<256,4> <272,4> <257,4>
Face verts 3 flags 0 mat 0
<272,4> <258,4> <257,4>
Face verts 3 flags 0 mat 0
<272,4> <273,4> <258,4>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\stand.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "matte"
