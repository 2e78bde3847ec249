# basin: made by art/build.sh, do not edit
Name basin
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 241
2.92 0 -0.3
2.92 0 0.44
2.7771 0.9023 -0.3
2.7771 0.9023 0.44
2.3623 1.7163 -0.3
2.3623 1.7163 0.44
1.7163 2.3623 -0.3
1.7163 2.3623 0.44
0.9023 2.7771 -0.3
0.9023 2.7771 0.44
0 2.92 -0.3
0 2.92 0.44
-0.9023 2.7771 -0.3
-0.9023 2.7771 0.44
-1.7163 2.3623 -0.3
-1.7163 2.3623 0.44
-2.3623 1.7163 -0.3
-2.3623 1.7163 0.44
-2.7771 0.9023 -0.3
-2.7771 0.9023 0.44
-2.92 0 -0.3
-2.92 0 0.44
-2.7771 -0.9023 -0.3
-2.7771 -0.9023 0.44
-2.3623 -1.7163 -0.3
-2.3623 -1.7163 0.44
-1.7163 -2.3623 -0.3
-1.7163 -2.3623 0.44
-0.9023 -2.7771 -0.3
-0.9023 -2.7771 0.44
0 -2.92 -0.3
0 -2.92 0.44
0.9023 -2.7771 -0.3
0.9023 -2.7771 0.44
1.7163 -2.3623 -0.3
1.7163 -2.3623 0.44
2.3623 -1.7163 -0.3
2.3623 -1.7163 0.44
2.7771 -0.9023 -0.3
2.7771 -0.9023 0.44
2.92 0 0.44
2.36 0 0.44
2.7771 0.9023 0.44
2.2445 0.7293 0.44
2.3623 1.7163 0.44
1.9093 1.3872 0.44
1.7163 2.3623 0.44
1.3872 1.9093 0.44
0.9023 2.7771 0.44
0.7293 2.2445 0.44
0 2.92 0.44
0 2.36 0.44
-0.9023 2.7771 0.44
-0.7293 2.2445 0.44
-1.7163 2.3623 0.44
-1.3872 1.9093 0.44
-2.3623 1.7163 0.44
-1.9093 1.3872 0.44
-2.7771 0.9023 0.44
-2.2445 0.7293 0.44
-2.92 0 0.44
-2.36 0 0.44
-2.7771 -0.9023 0.44
-2.2445 -0.7293 0.44
-2.3623 -1.7163 0.44
-1.9093 -1.3872 0.44
-1.7163 -2.3623 0.44
-1.3872 -1.9093 0.44
-0.9023 -2.7771 0.44
-0.7293 -2.2445 0.44
0 -2.92 0.44
0 -2.36 0.44
0.9023 -2.7771 0.44
0.7293 -2.2445 0.44
1.7163 -2.3623 0.44
1.3872 -1.9093 0.44
2.3623 -1.7163 0.44
1.9093 -1.3872 0.44
2.7771 -0.9023 0.44
2.2445 -0.7293 0.44
2.36 0 0.44
2.36 0 -0.3
2.2445 0.7293 0.44
2.2445 0.7293 -0.3
1.9093 1.3872 0.44
1.9093 1.3872 -0.3
1.3872 1.9093 0.44
1.3872 1.9093 -0.3
0.7293 2.2445 0.44
0.7293 2.2445 -0.3
0 2.36 0.44
0 2.36 -0.3
-0.7293 2.2445 0.44
-0.7293 2.2445 -0.3
-1.3872 1.9093 0.44
-1.3872 1.9093 -0.3
-1.9093 1.3872 0.44
-1.9093 1.3872 -0.3
-2.2445 0.7293 0.44
-2.2445 0.7293 -0.3
-2.36 0 0.44
-2.36 0 -0.3
-2.2445 -0.7293 0.44
-2.2445 -0.7293 -0.3
-1.9093 -1.3872 0.44
-1.9093 -1.3872 -0.3
-1.3872 -1.9093 0.44
-1.3872 -1.9093 -0.3
-0.7293 -2.2445 0.44
-0.7293 -2.2445 -0.3
0 -2.36 0.44
0 -2.36 -0.3
0.7293 -2.2445 0.44
0.7293 -2.2445 -0.3
1.3872 -1.9093 0.44
1.3872 -1.9093 -0.3
1.9093 -1.3872 0.44
1.9093 -1.3872 -0.3
2.2445 -0.7293 0.44
2.2445 -0.7293 -0.3
2.38 0 0.22
1.6 0 0.22
0.8 0 0.22
0.0001 0 0.22
2.2635 0.7355 0.22
1.5217 0.4944 0.22
0.7608 0.2472 0.22
0.0001 0 0.22
1.9255 1.3989 0.22
1.2944 0.9405 0.22
0.6472 0.4702 0.22
0.0001 0.0001 0.22
1.3989 1.9255 0.22
0.9405 1.2944 0.22
0.4702 0.6472 0.22
0.0001 0.0001 0.22
0.7355 2.2635 0.22
0.4944 1.5217 0.22
0.2472 0.7608 0.22
0 0.0001 0.22
0 2.38 0.22
0 1.6 0.22
0 0.8 0.22
0 0.0001 0.22
-0.7355 2.2635 0.22
-0.4944 1.5217 0.22
-0.2472 0.7608 0.22
0 0.0001 0.22
-1.3989 1.9255 0.22
-0.9405 1.2944 0.22
-0.4702 0.6472 0.22
-0.0001 0.0001 0.22
-1.9255 1.3989 0.22
-1.2944 0.9405 0.22
-0.6472 0.4702 0.22
-0.0001 0.0001 0.22
-2.2635 0.7355 0.22
-1.5217 0.4944 0.22
-0.7608 0.2472 0.22
-0.0001 0 0.22
-2.38 0 0.22
-1.6 0 0.22
-0.8 0 0.22
-0.0001 0 0.22
-2.2635 -0.7355 0.22
-1.5217 -0.4944 0.22
-0.7608 -0.2472 0.22
-0.0001 0 0.22
-1.9255 -1.3989 0.22
-1.2944 -0.9405 0.22
-0.6472 -0.4702 0.22
-0.0001 -0.0001 0.22
-1.3989 -1.9255 0.22
-0.9405 -1.2944 0.22
-0.4702 -0.6472 0.22
-0.0001 -0.0001 0.22
-0.7355 -2.2635 0.22
-0.4944 -1.5217 0.22
-0.2472 -0.7608 0.22
0 -0.0001 0.22
0 -2.38 0.22
0 -1.6 0.22
0 -0.8 0.22
0 -0.0001 0.22
0.7355 -2.2635 0.22
0.4944 -1.5217 0.22
0.2472 -0.7608 0.22
0 -0.0001 0.22
1.3989 -1.9255 0.22
0.9405 -1.2944 0.22
0.4702 -0.6472 0.22
0.0001 -0.0001 0.22
1.9255 -1.3989 0.22
1.2944 -0.9405 0.22
0.6472 -0.4702 0.22
0.0001 -0.0001 0.22
2.2635 -0.7355 0.22
1.5217 -0.4944 0.22
0.7608 -0.2472 0.22
0.0001 0 0.22
0.34 0 0
0.28 0 0.7
0.44 0 0.84
0.52 0 0.98
0.0001 0 0.92
0.2404 0.2404 0
0.198 0.198 0.7
0.3111 0.3111 0.84
0.3677 0.3677 0.98
0.0001 0.0001 0.92
0 0.34 0
0 0.28 0.7
0 0.44 0.84
0 0.52 0.98
0 0.0001 0.92
-0.2404 0.2404 0
-0.198 0.198 0.7
-0.3111 0.3111 0.84
-0.3677 0.3677 0.98
-0.0001 0.0001 0.92
-0.34 0 0
-0.28 0 0.7
-0.44 0 0.84
-0.52 0 0.98
-0.0001 0 0.92
-0.2404 -0.2404 0
-0.198 -0.198 0.7
-0.3111 -0.3111 0.84
-0.3677 -0.3677 0.98
-0.0001 -0.0001 0.92
0 -0.34 0
0 -0.28 0.7
0 -0.44 0.84
0 -0.52 0.98
0 -0.0001 0.92
0.2404 -0.2404 0
0.198 -0.198 0.7
0.3111 -0.3111 0.84
0.3677 -0.3677 0.98
0.0001 -0.0001 0.92
0 0 4.1932
Texture Vertices 5
0.8889 0.873
0.127 0.619
0.127 0.873
0.381 0.873
0.6349 0.873
Faces 304
Face verts 3 flags 0 mat 0
<0,0> <3,0> <2,0>
Face verts 3 flags 0 mat 0
<0,0> <1,0> <3,0>
Face verts 3 flags 0 mat 0
<2,1> <3,1> <4,1>
Face verts 3 flags 0 mat 0
<4,1> <3,1> <5,1>
Face verts 3 flags 0 mat 0
<4,0> <7,0> <6,0>
Face verts 3 flags 0 mat 0
<4,0> <5,0> <7,0>
Face verts 3 flags 0 mat 0
<6,1> <7,1> <8,1>
Face verts 3 flags 0 mat 0
<8,1> <7,1> <9,1>
Face verts 3 flags 0 mat 0
<8,0> <11,0> <10,0>
Face verts 3 flags 0 mat 0
<8,0> <9,0> <11,0>
Face verts 3 flags 0 mat 0
<10,1> <11,1> <12,1>
Face verts 3 flags 0 mat 0
<12,1> <11,1> <13,1>
Face verts 3 flags 0 mat 0
<12,0> <15,0> <14,0>
Face verts 3 flags 0 mat 0
<12,0> <13,0> <15,0>
Face verts 3 flags 0 mat 0
<14,1> <15,1> <16,1>
Face verts 3 flags 0 mat 0
<16,1> <15,1> <17,1>
Face verts 3 flags 0 mat 0
<16,0> <19,0> <18,0>
Face verts 3 flags 0 mat 0
<16,0> <17,0> <19,0>
Face verts 3 flags 0 mat 0
<18,1> <19,1> <20,1>
Face verts 3 flags 0 mat 0
<20,1> <19,1> <21,1>
Face verts 3 flags 0 mat 0
<20,0> <23,0> <22,0>
Face verts 3 flags 0 mat 0
<20,0> <21,0> <23,0>
Face verts 3 flags 0 mat 0
<22,1> <23,1> <24,1>
Face verts 3 flags 0 mat 0
<24,1> <23,1> <25,1>
Face verts 3 flags 0 mat 0
<24,0> <27,0> <26,0>
Face verts 3 flags 0 mat 0
<24,0> <25,0> <27,0>
Face verts 3 flags 0 mat 0
<26,1> <27,1> <28,1>
Face verts 3 flags 0 mat 0
<28,1> <27,1> <29,1>
Face verts 3 flags 0 mat 0
<28,0> <31,0> <30,0>
Face verts 3 flags 0 mat 0
<28,0> <29,0> <31,0>
Face verts 3 flags 0 mat 0
<30,1> <31,1> <32,1>
Face verts 3 flags 0 mat 0
<32,1> <31,1> <33,1>
Face verts 3 flags 0 mat 0
<32,0> <35,0> <34,0>
Face verts 3 flags 0 mat 0
<32,0> <33,0> <35,0>
Face verts 3 flags 0 mat 0
<34,1> <35,1> <36,1>
Face verts 3 flags 0 mat 0
<36,1> <35,1> <37,1>
Face verts 3 flags 0 mat 0
<36,0> <39,0> <38,0>
Face verts 3 flags 0 mat 0
<36,0> <37,0> <39,0>
Face verts 3 flags 0 mat 0
<38,1> <39,1> <0,1>
Face verts 3 flags 0 mat 0
<0,1> <39,1> <1,1>
Face verts 3 flags 0 mat 0
<40,0> <43,0> <42,0>
Face verts 3 flags 0 mat 0
<40,0> <41,0> <43,0>
Face verts 3 flags 0 mat 0
<42,1> <43,1> <44,1>
Face verts 3 flags 0 mat 0
<44,1> <43,1> <45,1>
Face verts 3 flags 0 mat 0
<44,0> <47,0> <46,0>
Face verts 3 flags 0 mat 0
<44,0> <45,0> <47,0>
Face verts 3 flags 0 mat 0
<46,1> <47,1> <48,1>
Face verts 3 flags 0 mat 0
<48,1> <47,1> <49,1>
Face verts 3 flags 0 mat 0
<48,0> <51,0> <50,0>
Face verts 3 flags 0 mat 0
<48,0> <49,0> <51,0>
Face verts 3 flags 0 mat 0
<50,1> <51,1> <52,1>
Face verts 3 flags 0 mat 0
<52,1> <51,1> <53,1>
Face verts 3 flags 0 mat 0
<52,0> <55,0> <54,0>
Face verts 3 flags 0 mat 0
<52,0> <53,0> <55,0>
Face verts 3 flags 0 mat 0
<54,1> <55,1> <56,1>
Face verts 3 flags 0 mat 0
<56,1> <55,1> <57,1>
Face verts 3 flags 0 mat 0
<56,0> <59,0> <58,0>
Face verts 3 flags 0 mat 0
<56,0> <57,0> <59,0>
Face verts 3 flags 0 mat 0
<58,1> <59,1> <60,1>
Face verts 3 flags 0 mat 0
<60,1> <59,1> <61,1>
Face verts 3 flags 0 mat 0
<60,0> <63,0> <62,0>
Face verts 3 flags 0 mat 0
<60,0> <61,0> <63,0>
Face verts 3 flags 0 mat 0
<62,1> <63,1> <64,1>
Face verts 3 flags 0 mat 0
<64,1> <63,1> <65,1>
Face verts 3 flags 0 mat 0
<64,0> <67,0> <66,0>
Face verts 3 flags 0 mat 0
<64,0> <65,0> <67,0>
Face verts 3 flags 0 mat 0
<66,1> <67,1> <68,1>
Face verts 3 flags 0 mat 0
<68,1> <67,1> <69,1>
Face verts 3 flags 0 mat 0
<68,0> <71,0> <70,0>
Face verts 3 flags 0 mat 0
<68,0> <69,0> <71,0>
Face verts 3 flags 0 mat 0
<70,1> <71,1> <72,1>
Face verts 3 flags 0 mat 0
<72,1> <71,1> <73,1>
Face verts 3 flags 0 mat 0
<72,0> <75,0> <74,0>
Face verts 3 flags 0 mat 0
<72,0> <73,0> <75,0>
Face verts 3 flags 0 mat 0
<74,1> <75,1> <76,1>
Face verts 3 flags 0 mat 0
<76,1> <75,1> <77,1>
Face verts 3 flags 0 mat 0
<76,0> <79,0> <78,0>
Face verts 3 flags 0 mat 0
<76,0> <77,0> <79,0>
Face verts 3 flags 0 mat 0
<78,1> <79,1> <40,1>
Face verts 3 flags 0 mat 0
<40,1> <79,1> <41,1>
Face verts 3 flags 0 mat 0
<80,0> <83,0> <82,0>
Face verts 3 flags 0 mat 0
<80,0> <81,0> <83,0>
Face verts 3 flags 0 mat 0
<82,1> <83,1> <84,1>
Face verts 3 flags 0 mat 0
<84,1> <83,1> <85,1>
Face verts 3 flags 0 mat 0
<84,0> <87,0> <86,0>
Face verts 3 flags 0 mat 0
<84,0> <85,0> <87,0>
Face verts 3 flags 0 mat 0
<86,1> <87,1> <88,1>
Face verts 3 flags 0 mat 0
<88,1> <87,1> <89,1>
Face verts 3 flags 0 mat 0
<88,0> <91,0> <90,0>
Face verts 3 flags 0 mat 0
<88,0> <89,0> <91,0>
Face verts 3 flags 0 mat 0
<90,1> <91,1> <92,1>
Face verts 3 flags 0 mat 0
<92,1> <91,1> <93,1>
Face verts 3 flags 0 mat 0
<92,0> <95,0> <94,0>
Face verts 3 flags 0 mat 0
<92,0> <93,0> <95,0>
Face verts 3 flags 0 mat 0
<94,1> <95,1> <96,1>
Face verts 3 flags 0 mat 0
<96,1> <95,1> <97,1>
Face verts 3 flags 0 mat 0
<96,0> <99,0> <98,0>
Face verts 3 flags 0 mat 0
<96,0> <97,0> <99,0>
Face verts 3 flags 0 mat 0
<98,1> <99,1> <100,1>
Face verts 3 flags 0 mat 0
<100,1> <99,1> <101,1>
Face verts 3 flags 0 mat 0
<100,0> <103,0> <102,0>
Face verts 3 flags 0 mat 0
<100,0> <101,0> <103,0>
Face verts 3 flags 0 mat 0
<102,1> <103,1> <104,1>
Face verts 3 flags 0 mat 0
<104,1> <103,1> <105,1>
Face verts 3 flags 0 mat 0
<104,0> <107,0> <106,0>
Face verts 3 flags 0 mat 0
<104,0> <105,0> <107,0>
Face verts 3 flags 0 mat 0
<106,1> <107,1> <108,1>
Face verts 3 flags 0 mat 0
<108,1> <107,1> <109,1>
Face verts 3 flags 0 mat 0
<108,0> <111,0> <110,0>
Face verts 3 flags 0 mat 0
<108,0> <109,0> <111,0>
Face verts 3 flags 0 mat 0
<110,1> <111,1> <112,1>
Face verts 3 flags 0 mat 0
<112,1> <111,1> <113,1>
Face verts 3 flags 0 mat 0
<112,0> <115,0> <114,0>
Face verts 3 flags 0 mat 0
<112,0> <113,0> <115,0>
Face verts 3 flags 0 mat 0
<114,1> <115,1> <116,1>
Face verts 3 flags 0 mat 0
<116,1> <115,1> <117,1>
Face verts 3 flags 0 mat 0
<116,0> <119,0> <118,0>
Face verts 3 flags 0 mat 0
<116,0> <117,0> <119,0>
Face verts 3 flags 0 mat 0
<118,1> <119,1> <80,1>
Face verts 3 flags 0 mat 0
<80,1> <119,1> <81,1>
Face verts 3 flags 0 mat 1
<120,2> <125,2> <124,2>
Face verts 3 flags 0 mat 1
<120,2> <121,2> <125,2>
Face verts 3 flags 0 mat 1
<121,3> <122,3> <125,3>
Face verts 3 flags 0 mat 1
<125,3> <122,3> <126,3>
Face verts 3 flags 0 mat 1
<122,4> <127,4> <126,4>
Face verts 3 flags 0 mat 1
<122,4> <123,4> <127,4>
Face verts 3 flags 0 mat 1
<124,2> <125,2> <128,2>
Face verts 3 flags 0 mat 1
<128,2> <125,2> <129,2>
Face verts 3 flags 0 mat 1
<125,3> <130,3> <129,3>
Face verts 3 flags 0 mat 1
<125,3> <126,3> <130,3>
Face verts 3 flags 0 mat 1
<126,4> <127,4> <130,4>
Face verts 3 flags 0 mat 1
<130,4> <127,4> <131,4>
Face verts 3 flags 0 mat 1
<128,2> <133,2> <132,2>
Face verts 3 flags 0 mat 1
<128,2> <129,2> <133,2>
Face verts 3 flags 0 mat 1
<129,3> <130,3> <133,3>
Face verts 3 flags 0 mat 1
<133,3> <130,3> <134,3>
Face verts 3 flags 0 mat 1
<130,4> <135,4> <134,4>
Face verts 3 flags 0 mat 1
<130,4> <131,4> <135,4>
Face verts 3 flags 0 mat 1
<132,2> <133,2> <136,2>
Face verts 3 flags 0 mat 1
<136,2> <133,2> <137,2>
Face verts 3 flags 0 mat 1
<133,3> <138,3> <137,3>
Face verts 3 flags 0 mat 1
<133,3> <134,3> <138,3>
Face verts 3 flags 0 mat 1
<134,4> <135,4> <138,4>
Face verts 3 flags 0 mat 1
<138,4> <135,4> <139,4>
Face verts 3 flags 0 mat 1
<136,2> <141,2> <140,2>
Face verts 3 flags 0 mat 1
<136,2> <137,2> <141,2>
Face verts 3 flags 0 mat 1
<137,3> <138,3> <141,3>
Face verts 3 flags 0 mat 1
<141,3> <138,3> <142,3>
Face verts 3 flags 0 mat 1
<138,4> <143,4> <142,4>
Face verts 3 flags 0 mat 1
<138,4> <139,4> <143,4>
Face verts 3 flags 0 mat 1
<140,2> <141,2> <144,2>
Face verts 3 flags 0 mat 1
<144,2> <141,2> <145,2>
Face verts 3 flags 0 mat 1
<141,3> <146,3> <145,3>
Face verts 3 flags 0 mat 1
<141,3> <142,3> <146,3>
Face verts 3 flags 0 mat 1
<142,4> <143,4> <146,4>
Face verts 3 flags 0 mat 1
<146,4> <143,4> <147,4>
Face verts 3 flags 0 mat 1
<144,2> <149,2> <148,2>
Face verts 3 flags 0 mat 1
<144,2> <145,2> <149,2>
Face verts 3 flags 0 mat 1
<145,3> <146,3> <149,3>
Face verts 3 flags 0 mat 1
<149,3> <146,3> <150,3>
Face verts 3 flags 0 mat 1
<146,4> <151,4> <150,4>
Face verts 3 flags 0 mat 1
<146,4> <147,4> <151,4>
Face verts 3 flags 0 mat 1
<148,2> <149,2> <152,2>
Face verts 3 flags 0 mat 1
<152,2> <149,2> <153,2>
Face verts 3 flags 0 mat 1
<149,3> <154,3> <153,3>
Face verts 3 flags 0 mat 1
<149,3> <150,3> <154,3>
Face verts 3 flags 0 mat 1
<150,4> <151,4> <154,4>
Face verts 3 flags 0 mat 1
<154,4> <151,4> <155,4>
Face verts 3 flags 0 mat 1
<152,2> <157,2> <156,2>
Face verts 3 flags 0 mat 1
<152,2> <153,2> <157,2>
Face verts 3 flags 0 mat 1
<153,3> <154,3> <157,3>
Face verts 3 flags 0 mat 1
<157,3> <154,3> <158,3>
Face verts 3 flags 0 mat 1
<154,4> <159,4> <158,4>
Face verts 3 flags 0 mat 1
<154,4> <155,4> <159,4>
Face verts 3 flags 0 mat 1
<156,2> <157,2> <160,2>
Face verts 3 flags 0 mat 1
<160,2> <157,2> <161,2>
Face verts 3 flags 0 mat 1
<157,3> <162,3> <161,3>
Face verts 3 flags 0 mat 1
<157,3> <158,3> <162,3>
Face verts 3 flags 0 mat 1
<158,4> <159,4> <162,4>
Face verts 3 flags 0 mat 1
<162,4> <159,4> <163,4>
Face verts 3 flags 0 mat 1
<160,2> <165,2> <164,2>
Face verts 3 flags 0 mat 1
<160,2> <161,2> <165,2>
Face verts 3 flags 0 mat 1
<161,3> <162,3> <165,3>
Face verts 3 flags 0 mat 1
<165,3> <162,3> <166,3>
Face verts 3 flags 0 mat 1
<162,4> <167,4> <166,4>
Face verts 3 flags 0 mat 1
<162,4> <163,4> <167,4>
Face verts 3 flags 0 mat 1
<164,2> <165,2> <168,2>
Face verts 3 flags 0 mat 1
<168,2> <165,2> <169,2>
Face verts 3 flags 0 mat 1
<165,3> <170,3> <169,3>
Face verts 3 flags 0 mat 1
<165,3> <166,3> <170,3>
Face verts 3 flags 0 mat 1
<166,4> <167,4> <170,4>
Face verts 3 flags 0 mat 1
<170,4> <167,4> <171,4>
Face verts 3 flags 0 mat 1
<168,2> <173,2> <172,2>
Face verts 3 flags 0 mat 1
<168,2> <169,2> <173,2>
Face verts 3 flags 0 mat 1
<169,3> <170,3> <173,3>
Face verts 3 flags 0 mat 1
<173,3> <170,3> <174,3>
Face verts 3 flags 0 mat 1
<170,4> <175,4> <174,4>
Face verts 3 flags 0 mat 1
<170,4> <171,4> <175,4>
Face verts 3 flags 0 mat 1
<172,2> <173,2> <176,2>
Face verts 3 flags 0 mat 1
<176,2> <173,2> <177,2>
Face verts 3 flags 0 mat 1
<173,3> <178,3> <177,3>
Face verts 3 flags 0 mat 1
<173,3> <174,3> <178,3>
Face verts 3 flags 0 mat 1
<174,4> <175,4> <178,4>
Face verts 3 flags 0 mat 1
<178,4> <175,4> <179,4>
Face verts 3 flags 0 mat 1
<176,2> <181,2> <180,2>
Face verts 3 flags 0 mat 1
<176,2> <177,2> <181,2>
Face verts 3 flags 0 mat 1
<177,3> <178,3> <181,3>
Face verts 3 flags 0 mat 1
<181,3> <178,3> <182,3>
Face verts 3 flags 0 mat 1
<178,4> <183,4> <182,4>
Face verts 3 flags 0 mat 1
<178,4> <179,4> <183,4>
Face verts 3 flags 0 mat 1
<180,2> <181,2> <184,2>
Face verts 3 flags 0 mat 1
<184,2> <181,2> <185,2>
Face verts 3 flags 0 mat 1
<181,3> <186,3> <185,3>
Face verts 3 flags 0 mat 1
<181,3> <182,3> <186,3>
Face verts 3 flags 0 mat 1
<182,4> <183,4> <186,4>
Face verts 3 flags 0 mat 1
<186,4> <183,4> <187,4>
Face verts 3 flags 0 mat 1
<184,2> <189,2> <188,2>
Face verts 3 flags 0 mat 1
<184,2> <185,2> <189,2>
Face verts 3 flags 0 mat 1
<185,3> <186,3> <189,3>
Face verts 3 flags 0 mat 1
<189,3> <186,3> <190,3>
Face verts 3 flags 0 mat 1
<186,4> <191,4> <190,4>
Face verts 3 flags 0 mat 1
<186,4> <187,4> <191,4>
Face verts 3 flags 0 mat 1
<188,2> <189,2> <192,2>
Face verts 3 flags 0 mat 1
<192,2> <189,2> <193,2>
Face verts 3 flags 0 mat 1
<189,3> <194,3> <193,3>
Face verts 3 flags 0 mat 1
<189,3> <190,3> <194,3>
Face verts 3 flags 0 mat 1
<190,4> <191,4> <194,4>
Face verts 3 flags 0 mat 1
<194,4> <191,4> <195,4>
Face verts 3 flags 0 mat 1
<192,2> <197,2> <196,2>
Face verts 3 flags 0 mat 1
<192,2> <193,2> <197,2>
Face verts 3 flags 0 mat 1
<193,3> <194,3> <197,3>
Face verts 3 flags 0 mat 1
<197,3> <194,3> <198,3>
Face verts 3 flags 0 mat 1
<194,4> <199,4> <198,4>
Face verts 3 flags 0 mat 1
<194,4> <195,4> <199,4>
Face verts 3 flags 0 mat 1
<196,2> <197,2> <120,2>
Face verts 3 flags 0 mat 1
<120,2> <197,2> <121,2>
Face verts 3 flags 0 mat 1
<197,3> <122,3> <121,3>
Face verts 3 flags 0 mat 1
<197,3> <198,3> <122,3>
Face verts 3 flags 0 mat 1
<198,4> <199,4> <122,4>
Face verts 3 flags 0 mat 1
<122,4> <199,4> <123,4>
Face verts 3 flags 0 mat 0
<200,1> <206,1> <205,1>
Face verts 3 flags 0 mat 0
<200,1> <201,1> <206,1>
Face verts 3 flags 0 mat 0
<201,1> <202,1> <206,1>
Face verts 3 flags 0 mat 0
<206,1> <202,1> <207,1>
Face verts 3 flags 0 mat 0
<202,1> <208,1> <207,1>
Face verts 3 flags 0 mat 0
<202,1> <203,1> <208,1>
Face verts 3 flags 0 mat 0
<203,1> <204,1> <208,1>
Face verts 3 flags 0 mat 0
<208,1> <204,1> <209,1>
Face verts 3 flags 0 mat 0
<205,1> <206,1> <210,1>
Face verts 3 flags 0 mat 0
<210,1> <206,1> <211,1>
Face verts 3 flags 0 mat 0
<206,1> <212,1> <211,1>
Face verts 3 flags 0 mat 0
<206,1> <207,1> <212,1>
Face verts 3 flags 0 mat 0
<207,1> <208,1> <212,1>
Face verts 3 flags 0 mat 0
<212,1> <208,1> <213,1>
Face verts 3 flags 0 mat 0
<208,1> <214,1> <213,1>
Face verts 3 flags 0 mat 0
<208,1> <209,1> <214,1>
Face verts 3 flags 0 mat 0
<210,1> <216,1> <215,1>
Face verts 3 flags 0 mat 0
<210,1> <211,1> <216,1>
Face verts 3 flags 0 mat 0
<211,1> <212,1> <216,1>
Face verts 3 flags 0 mat 0
<216,1> <212,1> <217,1>
Face verts 3 flags 0 mat 0
<212,1> <218,1> <217,1>
Face verts 3 flags 0 mat 0
<212,1> <213,1> <218,1>
Face verts 3 flags 0 mat 0
<213,1> <214,1> <218,1>
Face verts 3 flags 0 mat 0
<218,1> <214,1> <219,1>
Face verts 3 flags 0 mat 0
<215,1> <216,1> <220,1>
Face verts 3 flags 0 mat 0
<220,1> <216,1> <221,1>
Face verts 3 flags 0 mat 0
<216,1> <222,1> <221,1>
Face verts 3 flags 0 mat 0
<216,1> <217,1> <222,1>
Face verts 3 flags 0 mat 0
<217,1> <218,1> <222,1>
Face verts 3 flags 0 mat 0
<222,1> <218,1> <223,1>
Face verts 3 flags 0 mat 0
<218,1> <224,1> <223,1>
Face verts 3 flags 0 mat 0
<218,1> <219,1> <224,1>
Face verts 3 flags 0 mat 0
<220,1> <226,1> <225,1>
Face verts 3 flags 0 mat 0
<220,1> <221,1> <226,1>
Face verts 3 flags 0 mat 0
<221,1> <222,1> <226,1>
Face verts 3 flags 0 mat 0
<226,1> <222,1> <227,1>
Face verts 3 flags 0 mat 0
<222,1> <228,1> <227,1>
Face verts 3 flags 0 mat 0
<222,1> <223,1> <228,1>
Face verts 3 flags 0 mat 0
<223,1> <224,1> <228,1>
Face verts 3 flags 0 mat 0
<228,1> <224,1> <229,1>
Face verts 3 flags 0 mat 0
<225,1> <226,1> <230,1>
Face verts 3 flags 0 mat 0
<230,1> <226,1> <231,1>
Face verts 3 flags 0 mat 0
<226,1> <232,1> <231,1>
Face verts 3 flags 0 mat 0
<226,1> <227,1> <232,1>
Face verts 3 flags 0 mat 0
<227,1> <228,1> <232,1>
Face verts 3 flags 0 mat 0
<232,1> <228,1> <233,1>
Face verts 3 flags 0 mat 0
<228,1> <234,1> <233,1>
Face verts 3 flags 0 mat 0
<228,1> <229,1> <234,1>
Face verts 3 flags 0 mat 0
<230,1> <236,1> <235,1>
Face verts 3 flags 0 mat 0
<230,1> <231,1> <236,1>
Face verts 3 flags 0 mat 0
<231,1> <232,1> <236,1>
Face verts 3 flags 0 mat 0
<236,1> <232,1> <237,1>
Face verts 3 flags 0 mat 0
<232,1> <238,1> <237,1>
Face verts 3 flags 0 mat 0
<232,1> <233,1> <238,1>
Face verts 3 flags 0 mat 0
<233,1> <234,1> <238,1>
Face verts 3 flags 0 mat 0
<238,1> <234,1> <239,1>
Face verts 3 flags 0 mat 0
<235,1> <236,1> <200,1>
Face verts 3 flags 0 mat 0
<200,1> <236,1> <201,1>
Face verts 3 flags 0 mat 0
<236,1> <202,1> <201,1>
Face verts 3 flags 0 mat 0
<236,1> <237,1> <202,1>
Face verts 3 flags 0 mat 0
<237,1> <238,1> <202,1>
Face verts 3 flags 0 mat 0
<202,1> <238,1> <203,1>
Face verts 3 flags 0 mat 0
<238,1> <204,1> <203,1>
Face verts 3 flags 0 mat 0
<238,1> <239,1> <204,1>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\basin.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "matte"
mat# 1
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\basin.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "plastic"
