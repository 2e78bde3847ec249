# boat: made by art/build.sh, do not edit
Name boat
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 311
-2.3 -0.08 0.96
-2.3 -0.0657 0.5586
-2.3 -0.0388 0.2352
-2.3 0 0.18
-2.3 0.0388 0.2352
-2.3 0.0657 0.5586
-2.3 0.08 0.96
-2 -0.44 0.74
-2 -0.3613 0.4518
-2 -0.2137 0.2196
-2 0 0.18
-2 0.2137 0.2196
-2 0.3613 0.4518
-2 0.44 0.74
-1.2 -0.78 0.52
-1.2 -0.6405 0.2524
-1.2 -0.3788 0.0368
-1.2 0 0
-1.2 0.3788 0.0368
-1.2 0.6405 0.2524
-1.2 0.78 0.52
0 -0.92 0.44
0 -0.7554 0.2136
0 -0.4467 0.0311
0 0 0
0 0.4467 0.0311
0 0.7554 0.2136
0 0.92 0.44
1.2 -0.8 0.5
1.2 -0.6569 0.2427
1.2 -0.3885 0.0354
1.2 0 0
1.2 0.3885 0.0354
1.2 0.6569 0.2427
1.2 0.8 0.5
2 -0.44 0.7
2 -0.3613 0.4324
2 -0.2137 0.2168
2 0 0.18
2 0.2137 0.2168
2 0.3613 0.4324
2 0.44 0.7
2.46 -0.05 1.08
2.46 -0.0411 0.6169
2.46 -0.0243 0.2437
2.46 0 0.18
2.46 0.0243 0.2437
2.46 0.0411 0.6169
2.46 0.05 1.08
-2.231 -0.072 0.96
-2.231 -0.0591 0.6307
-2.231 -0.035 0.3653
-2.231 0 0.32
-2.231 0.035 0.3653
-2.231 0.0591 0.6307
-2.231 0.072 0.96
-1.94 -0.396 0.74
-1.94 -0.3252 0.5239
-1.94 -0.1923 0.3497
-1.94 0 0.32
-1.94 0.1923 0.3497
-1.94 0.3252 0.5239
-1.94 0.396 0.74
-1.164 -0.702 0.52
-1.164 -0.5764 0.3245
-1.164 -0.3409 0.1669
-1.164 0 0.14
-1.164 0.3409 0.1669
-1.164 0.5764 0.3245
-1.164 0.702 0.52
0 -0.828 0.44
0 -0.6799 0.2856
0 -0.4021 0.1612
0 0 0.14
0 0.4021 0.1612
0 0.6799 0.2856
0 0.828 0.44
1.164 -0.72 0.5
1.164 -0.5912 0.3148
1.164 -0.3496 0.1655
1.164 0 0.14
1.164 0.3496 0.1655
1.164 0.5912 0.3148
1.164 0.72 0.5
1.94 -0.396 0.7
1.94 -0.3252 0.5045
1.94 -0.1923 0.3469
1.94 0 0.32
1.94 0.1923 0.3469
1.94 0.3252 0.5045
1.94 0.396 0.7
2.3862 -0.045 1.08
2.3862 -0.0369 0.6889
2.3862 -0.0219 0.3738
2.3862 0 0.32
2.3862 0.0219 0.3738
2.3862 0.0369 0.6889
2.3862 0.045 1.08
-2.3538 -0.1248 0.99
-2.281 -0.1029 1.0534
-2.2462 -0.0352 0.99
-2.319 -0.0571 0.9266
-2.0376 -0.4991 0.77
-1.9811 -0.452 0.8363
-1.9624 -0.3809 0.77
-2.0189 -0.428 0.7037
-1.2163 -0.8481 0.55
-1.1902 -0.7824 0.6193
-1.1837 -0.7119 0.55
-1.2098 -0.7776 0.4807
-0.0006 -0.99 0.47
0.0006 -0.92 0.54
0.0006 -0.85 0.47
-0.0006 -0.92 0.4
1.2163 -0.8681 0.53
1.1915 -0.802 0.5994
1.1837 -0.7319 0.53
1.2085 -0.798 0.4606
2.0358 -0.5002 0.73
1.9779 -0.4532 0.7951
1.9642 -0.3798 0.73
2.0221 -0.4268 0.6649
2.5053 -0.1034 1.11
2.4315 -0.0741 1.1692
2.4147 0.0034 1.11
2.4885 -0.0259 1.0508
-2.2462 0.0352 0.99
-2.281 0.1029 1.0534
-2.3538 0.1248 0.99
-2.319 0.0571 0.9266
-1.9624 0.3809 0.77
-1.9811 0.452 0.8363
-2.0376 0.4991 0.77
-2.0189 0.428 0.7037
-1.1837 0.7119 0.55
-1.1902 0.7824 0.6193
-1.2163 0.8481 0.55
-1.2098 0.7776 0.4807
0.0006 0.85 0.47
0.0006 0.92 0.54
-0.0006 0.99 0.47
-0.0006 0.92 0.4
1.1837 0.7319 0.53
1.1915 0.802 0.5994
1.2163 0.8681 0.53
1.2085 0.798 0.4606
1.9642 0.3798 0.73
1.9779 0.4532 0.7951
2.0358 0.5002 0.73
2.0221 0.4268 0.6649
2.4147 -0.0034 1.11
2.4315 0.0741 1.1692
2.5053 0.1034 1.11
2.4885 0.0259 1.0508
-1.33 -0.7 0.46
-1.07 -0.7 0.46
-1.07 -0.7 0.54
-1.33 -0.7 0.54
-1.07 -0.7 0.46
-1.07 0.7 0.46
-1.07 0.7 0.54
-1.07 -0.7 0.54
-1.07 0.7 0.46
-1.33 0.7 0.46
-1.33 0.7 0.54
-1.07 0.7 0.54
-1.33 0.7 0.46
-1.33 -0.7 0.46
-1.33 -0.7 0.54
-1.33 0.7 0.54
-1.33 -0.7 0.54
-1.07 -0.7 0.54
-1.07 0.7 0.54
-1.33 0.7 0.54
-1.33 0.7 0.46
-1.07 0.7 0.46
-1.07 -0.7 0.46
-1.33 -0.7 0.46
-0.03 -0.7 0.46
0.23 -0.7 0.46
0.23 -0.7 0.54
-0.03 -0.7 0.54
0.23 -0.7 0.46
0.23 0.7 0.46
0.23 0.7 0.54
0.23 -0.7 0.54
0.23 0.7 0.46
-0.03 0.7 0.46
-0.03 0.7 0.54
0.23 0.7 0.54
-0.03 0.7 0.46
-0.03 -0.7 0.46
-0.03 -0.7 0.54
-0.03 0.7 0.54
-0.03 -0.7 0.54
0.23 -0.7 0.54
0.23 0.7 0.54
-0.03 0.7 0.54
-0.03 0.7 0.46
0.23 0.7 0.46
0.23 -0.7 0.46
-0.03 -0.7 0.46
1.07 -0.7 0.46
1.33 -0.7 0.46
1.33 -0.7 0.54
1.07 -0.7 0.54
1.33 -0.7 0.46
1.33 0.7 0.46
1.33 0.7 0.54
1.33 -0.7 0.54
1.33 0.7 0.46
1.07 0.7 0.46
1.07 0.7 0.54
1.33 0.7 0.54
1.07 0.7 0.46
1.07 -0.7 0.46
1.07 -0.7 0.54
1.07 0.7 0.54
1.07 -0.7 0.54
1.33 -0.7 0.54
1.33 0.7 0.54
1.07 0.7 0.54
1.07 0.7 0.46
1.33 0.7 0.46
1.33 -0.7 0.46
1.07 -0.7 0.46
0.6 0.09 0.2
0.6779 0.045 0.2016
0.6779 -0.045 0.2016
0.6 -0.09 0.2
0.5221 -0.045 0.1984
0.5221 0.045 0.1984
0.52 0.06 4.2
0.572 0.03 4.201
0.572 -0.03 4.201
0.52 -0.06 4.2
0.468 -0.03 4.199
0.468 0.03 4.199
1.9029 0.0499 1.5
1.9417 -0.0024 1.5275
1.8971 -0.0499 1.5
1.8583 0.0024 1.4725
0.52 0.15 3.6
0.5765 0.08 3.6413
0.52 0.01 3.6
0.4635 0.08 3.5587
-1.102 0.04 5.6
-1.069 0.0015 5.6252
-1.098 -0.04 5.6
-1.131 -0.0015 5.5748
1.7 0.03 1.28
1.75 0.1969 1.335
1.8 0.2661 1.39
1.85 0.1969 1.445
1.9 0.03 1.5
1.02 0.03 1.292
1.09 0.3405 1.549
1.16 0.4691 1.806
1.23 0.3405 2.063
1.3 0.03 2.32
0.34 0.03 1.304
0.43 0.3975 1.763
0.52 0.5497 2.222
0.61 0.3975 2.681
0.7 0.03 3.14
-0.34 0.03 1.316
-0.23 0.3522 1.977
-0.12 0.4857 2.638
-0.01 0.3522 3.299
0.1 0.03 3.96
-1.02 0.03 1.328
-0.89 0.2172 2.191
-0.76 0.2947 3.054
-0.63 0.2172 3.917
-0.5 0.03 4.78
-1.7 0.03 1.34
-1.55 0.03 2.405
-1.4 0.03 3.47
-1.25 0.03 4.535
-1.1 0.03 5.6
1.7 -0.03 1.28
1.75 0.1369 1.335
1.8 0.2061 1.39
1.85 0.1369 1.445
1.9 -0.03 1.5
1.02 -0.03 1.292
1.09 0.2805 1.549
1.16 0.4091 1.806
1.23 0.2805 2.063
1.3 -0.03 2.32
0.34 -0.03 1.304
0.43 0.3375 1.763
0.52 0.4897 2.222
0.61 0.3375 2.681
0.7 -0.03 3.14
-0.34 -0.03 1.316
-0.23 0.2922 1.977
-0.12 0.4257 2.638
-0.01 0.2922 3.299
0.1 -0.03 3.96
-1.02 -0.03 1.328
-0.89 0.1572 2.191
-0.76 0.2347 3.054
-0.63 0.1572 3.917
-0.5 -0.03 4.78
-1.7 -0.03 1.34
-1.55 -0.03 2.405
-1.4 -0.03 3.47
-1.25 -0.03 4.535
-1.1 -0.03 5.6
0 0 8.1307
Texture Vertices 5
0.6349 0.873
0.127 0.873
0.381 0.873
0.127 0.619
0.8889 0.873
Faces 384
Face verts 3 flags 0 mat 0
<0,0> <7,0> <8,0>
Face verts 3 flags 0 mat 0
<0,0> <8,0> <1,0>
Face verts 3 flags 0 mat 0
<1,1> <8,1> <2,1>
Face verts 3 flags 0 mat 0
<8,1> <9,1> <2,1>
Face verts 3 flags 0 mat 0
<2,1> <9,1> <10,1>
Face verts 3 flags 0 mat 0
<2,1> <10,1> <3,1>
Face verts 3 flags 0 mat 0
<3,1> <10,1> <4,1>
Face verts 3 flags 0 mat 0
<10,1> <11,1> <4,1>
Face verts 3 flags 0 mat 0
<4,1> <11,1> <12,1>
Face verts 3 flags 0 mat 0
<4,1> <12,1> <5,1>
Face verts 3 flags 0 mat 0
<5,0> <12,0> <6,0>
Face verts 3 flags 0 mat 0
<12,0> <13,0> <6,0>
Face verts 3 flags 0 mat 0
<7,0> <14,0> <8,0>
Face verts 3 flags 0 mat 0
<14,0> <15,0> <8,0>
Face verts 3 flags 0 mat 0
<8,1> <15,1> <16,1>
Face verts 3 flags 0 mat 0
<8,1> <16,1> <9,1>
Face verts 3 flags 0 mat 0
<9,1> <16,1> <10,1>
Face verts 3 flags 0 mat 0
<16,1> <17,1> <10,1>
Face verts 3 flags 0 mat 0
<10,1> <17,1> <18,1>
Face verts 3 flags 0 mat 0
<10,1> <18,1> <11,1>
Face verts 3 flags 0 mat 0
<11,1> <18,1> <12,1>
Face verts 3 flags 0 mat 0
<18,1> <19,1> <12,1>
Face verts 3 flags 0 mat 0
<12,0> <19,0> <20,0>
Face verts 3 flags 0 mat 0
<12,0> <20,0> <13,0>
Face verts 3 flags 0 mat 0
<14,0> <21,0> <22,0>
Face verts 3 flags 0 mat 0
<14,0> <22,0> <15,0>
Face verts 3 flags 0 mat 0
<15,1> <22,1> <16,1>
Face verts 3 flags 0 mat 0
<22,1> <23,1> <16,1>
Face verts 3 flags 0 mat 0
<16,1> <23,1> <24,1>
Face verts 3 flags 0 mat 0
<16,1> <24,1> <17,1>
Face verts 3 flags 0 mat 0
<17,1> <24,1> <18,1>
Face verts 3 flags 0 mat 0
<24,1> <25,1> <18,1>
Face verts 3 flags 0 mat 0
<18,1> <25,1> <26,1>
Face verts 3 flags 0 mat 0
<18,1> <26,1> <19,1>
Face verts 3 flags 0 mat 0
<19,0> <26,0> <20,0>
Face verts 3 flags 0 mat 0
<26,0> <27,0> <20,0>
Face verts 3 flags 0 mat 0
<21,0> <28,0> <22,0>
Face verts 3 flags 0 mat 0
<28,0> <29,0> <22,0>
Face verts 3 flags 0 mat 0
<22,1> <29,1> <30,1>
Face verts 3 flags 0 mat 0
<22,1> <30,1> <23,1>
Face verts 3 flags 0 mat 0
<23,1> <30,1> <24,1>
Face verts 3 flags 0 mat 0
<30,1> <31,1> <24,1>
Face verts 3 flags 0 mat 0
<24,1> <31,1> <32,1>
Face verts 3 flags 0 mat 0
<24,1> <32,1> <25,1>
Face verts 3 flags 0 mat 0
<25,1> <32,1> <26,1>
Face verts 3 flags 0 mat 0
<32,1> <33,1> <26,1>
Face verts 3 flags 0 mat 0
<26,0> <33,0> <34,0>
Face verts 3 flags 0 mat 0
<26,0> <34,0> <27,0>
Face verts 3 flags 0 mat 0
<28,0> <35,0> <36,0>
Face verts 3 flags 0 mat 0
<28,0> <36,0> <29,0>
Face verts 3 flags 0 mat 0
<29,1> <36,1> <30,1>
Face verts 3 flags 0 mat 0
<36,1> <37,1> <30,1>
Face verts 3 flags 0 mat 0
<30,1> <37,1> <38,1>
Face verts 3 flags 0 mat 0
<30,1> <38,1> <31,1>
Face verts 3 flags 0 mat 0
<31,1> <38,1> <32,1>
Face verts 3 flags 0 mat 0
<38,1> <39,1> <32,1>
Face verts 3 flags 0 mat 0
<32,1> <39,1> <40,1>
Face verts 3 flags 0 mat 0
<32,1> <40,1> <33,1>
Face verts 3 flags 0 mat 0
<33,0> <40,0> <34,0>
Face verts 3 flags 0 mat 0
<40,0> <41,0> <34,0>
Face verts 3 flags 0 mat 0
<35,0> <42,0> <36,0>
Face verts 3 flags 0 mat 0
<42,0> <43,0> <36,0>
Face verts 3 flags 0 mat 0
<36,1> <43,1> <44,1>
Face verts 3 flags 0 mat 0
<36,1> <44,1> <37,1>
Face verts 3 flags 0 mat 0
<37,1> <44,1> <38,1>
Face verts 3 flags 0 mat 0
<44,1> <45,1> <38,1>
Face verts 3 flags 0 mat 0
<38,1> <45,1> <46,1>
Face verts 3 flags 0 mat 0
<38,1> <46,1> <39,1>
Face verts 3 flags 0 mat 0
<39,1> <46,1> <40,1>
Face verts 3 flags 0 mat 0
<46,1> <47,1> <40,1>
Face verts 3 flags 0 mat 0
<40,0> <47,0> <48,0>
Face verts 3 flags 0 mat 0
<40,0> <48,0> <41,0>
Face verts 3 flags 0 mat 0
<49,2> <57,2> <56,2>
Face verts 3 flags 0 mat 0
<49,2> <50,2> <57,2>
Face verts 3 flags 0 mat 0
<50,2> <51,2> <57,2>
Face verts 3 flags 0 mat 0
<57,2> <51,2> <58,2>
Face verts 3 flags 0 mat 0
<51,2> <59,2> <58,2>
Face verts 3 flags 0 mat 0
<51,2> <52,2> <59,2>
Face verts 3 flags 0 mat 0
<52,2> <53,2> <59,2>
Face verts 3 flags 0 mat 0
<59,2> <53,2> <60,2>
Face verts 3 flags 0 mat 0
<53,2> <61,2> <60,2>
Face verts 3 flags 0 mat 0
<53,2> <54,2> <61,2>
Face verts 3 flags 0 mat 0
<54,2> <55,2> <61,2>
Face verts 3 flags 0 mat 0
<61,2> <55,2> <62,2>
Face verts 3 flags 0 mat 0
<56,2> <57,2> <63,2>
Face verts 3 flags 0 mat 0
<63,2> <57,2> <64,2>
Face verts 3 flags 0 mat 0
<57,2> <65,2> <64,2>
Face verts 3 flags 0 mat 0
<57,2> <58,2> <65,2>
Face verts 3 flags 0 mat 0
<58,2> <59,2> <65,2>
Face verts 3 flags 0 mat 0
<65,2> <59,2> <66,2>
Face verts 3 flags 0 mat 0
<59,2> <67,2> <66,2>
Face verts 3 flags 0 mat 0
<59,2> <60,2> <67,2>
Face verts 3 flags 0 mat 0
<60,2> <61,2> <67,2>
Face verts 3 flags 0 mat 0
<67,2> <61,2> <68,2>
Face verts 3 flags 0 mat 0
<61,2> <69,2> <68,2>
Face verts 3 flags 0 mat 0
<61,2> <62,2> <69,2>
Face verts 3 flags 0 mat 0
<63,2> <71,2> <70,2>
Face verts 3 flags 0 mat 0
<63,2> <64,2> <71,2>
Face verts 3 flags 0 mat 0
<64,2> <65,2> <71,2>
Face verts 3 flags 0 mat 0
<71,2> <65,2> <72,2>
Face verts 3 flags 0 mat 0
<65,2> <73,2> <72,2>
Face verts 3 flags 0 mat 0
<65,2> <66,2> <73,2>
Face verts 3 flags 0 mat 0
<66,2> <67,2> <73,2>
Face verts 3 flags 0 mat 0
<73,2> <67,2> <74,2>
Face verts 3 flags 0 mat 0
<67,2> <75,2> <74,2>
Face verts 3 flags 0 mat 0
<67,2> <68,2> <75,2>
Face verts 3 flags 0 mat 0
<68,2> <69,2> <75,2>
Face verts 3 flags 0 mat 0
<75,2> <69,2> <76,2>
Face verts 3 flags 0 mat 0
<70,2> <71,2> <77,2>
Face verts 3 flags 0 mat 0
<77,2> <71,2> <78,2>
Face verts 3 flags 0 mat 0
<71,2> <79,2> <78,2>
Face verts 3 flags 0 mat 0
<71,2> <72,2> <79,2>
Face verts 3 flags 0 mat 0
<72,2> <73,2> <79,2>
Face verts 3 flags 0 mat 0
<79,2> <73,2> <80,2>
Face verts 3 flags 0 mat 0
<73,2> <81,2> <80,2>
Face verts 3 flags 0 mat 0
<73,2> <74,2> <81,2>
Face verts 3 flags 0 mat 0
<74,2> <75,2> <81,2>
Face verts 3 flags 0 mat 0
<81,2> <75,2> <82,2>
Face verts 3 flags 0 mat 0
<75,2> <83,2> <82,2>
Face verts 3 flags 0 mat 0
<75,2> <76,2> <83,2>
Face verts 3 flags 0 mat 0
<77,2> <85,2> <84,2>
Face verts 3 flags 0 mat 0
<77,2> <78,2> <85,2>
Face verts 3 flags 0 mat 0
<78,2> <79,2> <85,2>
Face verts 3 flags 0 mat 0
<85,2> <79,2> <86,2>
Face verts 3 flags 0 mat 0
<79,2> <87,2> <86,2>
Face verts 3 flags 0 mat 0
<79,2> <80,2> <87,2>
Face verts 3 flags 0 mat 0
<80,2> <81,2> <87,2>
Face verts 3 flags 0 mat 0
<87,2> <81,2> <88,2>
Face verts 3 flags 0 mat 0
<81,2> <89,2> <88,2>
Face verts 3 flags 0 mat 0
<81,2> <82,2> <89,2>
Face verts 3 flags 0 mat 0
<82,2> <83,2> <89,2>
Face verts 3 flags 0 mat 0
<89,2> <83,2> <90,2>
Face verts 3 flags 0 mat 0
<84,2> <85,2> <91,2>
Face verts 3 flags 0 mat 0
<91,2> <85,2> <92,2>
Face verts 3 flags 0 mat 0
<85,2> <93,2> <92,2>
Face verts 3 flags 0 mat 0
<85,2> <86,2> <93,2>
Face verts 3 flags 0 mat 0
<86,2> <87,2> <93,2>
Face verts 3 flags 0 mat 0
<93,2> <87,2> <94,2>
Face verts 3 flags 0 mat 0
<87,2> <95,2> <94,2>
Face verts 3 flags 0 mat 0
<87,2> <88,2> <95,2>
Face verts 3 flags 0 mat 0
<88,2> <89,2> <95,2>
Face verts 3 flags 0 mat 0
<95,2> <89,2> <96,2>
Face verts 3 flags 0 mat 0
<89,2> <97,2> <96,2>
Face verts 3 flags 0 mat 0
<89,2> <90,2> <97,2>
Face verts 3 flags 0 mat 0
<98,3> <103,3> <102,3>
Face verts 3 flags 0 mat 0
<98,3> <99,3> <103,3>
Face verts 3 flags 0 mat 0
<99,3> <100,3> <103,3>
Face verts 3 flags 0 mat 0
<103,3> <100,3> <104,3>
Face verts 3 flags 0 mat 0
<100,3> <105,3> <104,3>
Face verts 3 flags 0 mat 0
<100,3> <101,3> <105,3>
Face verts 3 flags 0 mat 0
<101,3> <98,3> <105,3>
Face verts 3 flags 0 mat 0
<105,3> <98,3> <102,3>
Face verts 3 flags 0 mat 0
<102,3> <103,3> <106,3>
Face verts 3 flags 0 mat 0
<106,3> <103,3> <107,3>
Face verts 3 flags 0 mat 0
<103,3> <108,3> <107,3>
Face verts 3 flags 0 mat 0
<103,3> <104,3> <108,3>
Face verts 3 flags 0 mat 0
<104,3> <105,3> <108,3>
Face verts 3 flags 0 mat 0
<108,3> <105,3> <109,3>
Face verts 3 flags 0 mat 0
<105,3> <106,3> <109,3>
Face verts 3 flags 0 mat 0
<105,3> <102,3> <106,3>
Face verts 3 flags 0 mat 0
<106,3> <111,3> <110,3>
Face verts 3 flags 0 mat 0
<106,3> <107,3> <111,3>
Face verts 3 flags 0 mat 0
<107,3> <108,3> <111,3>
Face verts 3 flags 0 mat 0
<111,3> <108,3> <112,3>
Face verts 3 flags 0 mat 0
<108,3> <113,3> <112,3>
Face verts 3 flags 0 mat 0
<108,3> <109,3> <113,3>
Face verts 3 flags 0 mat 0
<109,3> <106,3> <113,3>
Face verts 3 flags 0 mat 0
<113,3> <106,3> <110,3>
Face verts 3 flags 0 mat 0
<110,3> <111,3> <114,3>
Face verts 3 flags 0 mat 0
<114,3> <111,3> <115,3>
Face verts 3 flags 0 mat 0
<111,3> <116,3> <115,3>
Face verts 3 flags 0 mat 0
<111,3> <112,3> <116,3>
Face verts 3 flags 0 mat 0
<112,3> <113,3> <116,3>
Face verts 3 flags 0 mat 0
<116,3> <113,3> <117,3>
Face verts 3 flags 0 mat 0
<113,3> <114,3> <117,3>
Face verts 3 flags 0 mat 0
<113,3> <110,3> <114,3>
Face verts 3 flags 0 mat 0
<114,3> <119,3> <118,3>
Face verts 3 flags 0 mat 0
<114,3> <115,3> <119,3>
Face verts 3 flags 0 mat 0
<115,3> <116,3> <119,3>
Face verts 3 flags 0 mat 0
<119,3> <116,3> <120,3>
Face verts 3 flags 0 mat 0
<116,3> <121,3> <120,3>
Face verts 3 flags 0 mat 0
<116,3> <117,3> <121,3>
Face verts 3 flags 0 mat 0
<117,3> <114,3> <121,3>
Face verts 3 flags 0 mat 0
<121,3> <114,3> <118,3>
Face verts 3 flags 0 mat 0
<118,3> <119,3> <122,3>
Face verts 3 flags 0 mat 0
<122,3> <119,3> <123,3>
Face verts 3 flags 0 mat 0
<119,3> <124,3> <123,3>
Face verts 3 flags 0 mat 0
<119,3> <120,3> <124,3>
Face verts 3 flags 0 mat 0
<120,3> <121,3> <124,3>
Face verts 3 flags 0 mat 0
<124,3> <121,3> <125,3>
Face verts 3 flags 0 mat 0
<121,3> <122,3> <125,3>
Face verts 3 flags 0 mat 0
<121,3> <118,3> <122,3>
Face verts 3 flags 0 mat 0
<126,3> <131,3> <130,3>
Face verts 3 flags 0 mat 0
<126,3> <127,3> <131,3>
Face verts 3 flags 0 mat 0
<127,3> <128,3> <131,3>
Face verts 3 flags 0 mat 0
<131,3> <128,3> <132,3>
Face verts 3 flags 0 mat 0
<128,3> <133,3> <132,3>
Face verts 3 flags 0 mat 0
<128,3> <129,3> <133,3>
Face verts 3 flags 0 mat 0
<129,3> <126,3> <133,3>
Face verts 3 flags 0 mat 0
<133,3> <126,3> <130,3>
Face verts 3 flags 0 mat 0
<130,3> <131,3> <134,3>
Face verts 3 flags 0 mat 0
<134,3> <131,3> <135,3>
Face verts 3 flags 0 mat 0
<131,3> <136,3> <135,3>
Face verts 3 flags 0 mat 0
<131,3> <132,3> <136,3>
Face verts 3 flags 0 mat 0
<132,3> <133,3> <136,3>
Face verts 3 flags 0 mat 0
<136,3> <133,3> <137,3>
Face verts 3 flags 0 mat 0
<133,3> <134,3> <137,3>
Face verts 3 flags 0 mat 0
<133,3> <130,3> <134,3>
Face verts 3 flags 0 mat 0
<134,3> <139,3> <138,3>
Face verts 3 flags 0 mat 0
<134,3> <135,3> <139,3>
Face verts 3 flags 0 mat 0
<135,3> <136,3> <139,3>
Face verts 3 flags 0 mat 0
<139,3> <136,3> <140,3>
Face verts 3 flags 0 mat 0
<136,3> <141,3> <140,3>
Face verts 3 flags 0 mat 0
<136,3> <137,3> <141,3>
Face verts 3 flags 0 mat 0
<137,3> <134,3> <141,3>
Face verts 3 flags 0 mat 0
<141,3> <134,3> <138,3>
Face verts 3 flags 0 mat 0
<138,3> <139,3> <142,3>
Face verts 3 flags 0 mat 0
<142,3> <139,3> <143,3>
Face verts 3 flags 0 mat 0
<139,3> <144,3> <143,3>
Face verts 3 flags 0 mat 0
<139,3> <140,3> <144,3>
Face verts 3 flags 0 mat 0
<140,3> <141,3> <144,3>
Face verts 3 flags 0 mat 0
<144,3> <141,3> <145,3>
Face verts 3 flags 0 mat 0
<141,3> <142,3> <145,3>
Face verts 3 flags 0 mat 0
<141,3> <138,3> <142,3>
Face verts 3 flags 0 mat 0
<142,3> <147,3> <146,3>
Face verts 3 flags 0 mat 0
<142,3> <143,3> <147,3>
Face verts 3 flags 0 mat 0
<143,3> <144,3> <147,3>
Face verts 3 flags 0 mat 0
<147,3> <144,3> <148,3>
Face verts 3 flags 0 mat 0
<144,3> <149,3> <148,3>
Face verts 3 flags 0 mat 0
<144,3> <145,3> <149,3>
Face verts 3 flags 0 mat 0
<145,3> <142,3> <149,3>
Face verts 3 flags 0 mat 0
<149,3> <142,3> <146,3>
Face verts 3 flags 0 mat 0
<146,3> <147,3> <150,3>
Face verts 3 flags 0 mat 0
<150,3> <147,3> <151,3>
Face verts 3 flags 0 mat 0
<147,3> <152,3> <151,3>
Face verts 3 flags 0 mat 0
<147,3> <148,3> <152,3>
Face verts 3 flags 0 mat 0
<148,3> <149,3> <152,3>
Face verts 3 flags 0 mat 0
<152,3> <149,3> <153,3>
Face verts 3 flags 0 mat 0
<149,3> <150,3> <153,3>
Face verts 3 flags 0 mat 0
<149,3> <146,3> <150,3>
Face verts 3 flags 0 mat 0
<154,1> <156,1> <155,1>
Face verts 3 flags 0 mat 0
<154,1> <157,1> <156,1>
Face verts 3 flags 0 mat 0
<158,1> <160,1> <159,1>
Face verts 3 flags 0 mat 0
<158,1> <161,1> <160,1>
Face verts 3 flags 0 mat 0
<162,1> <164,1> <163,1>
Face verts 3 flags 0 mat 0
<162,1> <165,1> <164,1>
Face verts 3 flags 0 mat 0
<166,1> <168,1> <167,1>
Face verts 3 flags 0 mat 0
<166,1> <169,1> <168,1>
Face verts 3 flags 0 mat 0
<170,1> <172,1> <171,1>
Face verts 3 flags 0 mat 0
<170,1> <173,1> <172,1>
Face verts 3 flags 0 mat 0
<174,1> <176,1> <175,1>
Face verts 3 flags 0 mat 0
<174,1> <177,1> <176,1>
Face verts 3 flags 0 mat 0
<178,1> <180,1> <179,1>
Face verts 3 flags 0 mat 0
<178,1> <181,1> <180,1>
Face verts 3 flags 0 mat 0
<182,1> <184,1> <183,1>
Face verts 3 flags 0 mat 0
<182,1> <185,1> <184,1>
Face verts 3 flags 0 mat 0
<186,1> <188,1> <187,1>
Face verts 3 flags 0 mat 0
<186,1> <189,1> <188,1>
Face verts 3 flags 0 mat 0
<190,1> <192,1> <191,1>
Face verts 3 flags 0 mat 0
<190,1> <193,1> <192,1>
Face verts 3 flags 0 mat 0
<194,1> <196,1> <195,1>
Face verts 3 flags 0 mat 0
<194,1> <197,1> <196,1>
Face verts 3 flags 0 mat 0
<198,1> <200,1> <199,1>
Face verts 3 flags 0 mat 0
<198,1> <201,1> <200,1>
Face verts 3 flags 0 mat 0
<202,1> <204,1> <203,1>
Face verts 3 flags 0 mat 0
<202,1> <205,1> <204,1>
Face verts 3 flags 0 mat 0
<206,1> <208,1> <207,1>
Face verts 3 flags 0 mat 0
<206,1> <209,1> <208,1>
Face verts 3 flags 0 mat 0
<210,1> <212,1> <211,1>
Face verts 3 flags 0 mat 0
<210,1> <213,1> <212,1>
Face verts 3 flags 0 mat 0
<214,1> <216,1> <215,1>
Face verts 3 flags 0 mat 0
<214,1> <217,1> <216,1>
Face verts 3 flags 0 mat 0
<218,1> <220,1> <219,1>
Face verts 3 flags 0 mat 0
<218,1> <221,1> <220,1>
Face verts 3 flags 0 mat 0
<222,1> <224,1> <223,1>
Face verts 3 flags 0 mat 0
<222,1> <225,1> <224,1>
Face verts 3 flags 0 mat 0
<226,1> <233,1> <232,1>
Face verts 3 flags 0 mat 0
<226,1> <227,1> <233,1>
Face verts 3 flags 0 mat 0
<227,1> <228,1> <233,1>
Face verts 3 flags 0 mat 0
<233,1> <228,1> <234,1>
Face verts 3 flags 0 mat 0
<228,1> <235,1> <234,1>
Face verts 3 flags 0 mat 0
<228,1> <229,1> <235,1>
Face verts 3 flags 0 mat 0
<229,1> <230,1> <235,1>
Face verts 3 flags 0 mat 0
<235,1> <230,1> <236,1>
Face verts 3 flags 0 mat 0
<230,1> <237,1> <236,1>
Face verts 3 flags 0 mat 0
<230,1> <231,1> <237,1>
Face verts 3 flags 0 mat 0
<231,1> <226,1> <237,1>
Face verts 3 flags 0 mat 0
<237,1> <226,1> <232,1>
Face verts 3 flags 0 mat 0
<238,1> <243,1> <242,1>
Face verts 3 flags 0 mat 0
<238,1> <239,1> <243,1>
Face verts 3 flags 0 mat 0
<239,1> <240,1> <243,1>
Face verts 3 flags 0 mat 0
<243,1> <240,1> <244,1>
Face verts 3 flags 0 mat 0
<240,1> <245,1> <244,1>
Face verts 3 flags 0 mat 0
<240,1> <241,1> <245,1>
Face verts 3 flags 0 mat 0
<241,1> <238,1> <245,1>
Face verts 3 flags 0 mat 0
<245,1> <238,1> <242,1>
Face verts 3 flags 0 mat 0
<242,1> <243,1> <246,1>
Face verts 3 flags 0 mat 0
<246,1> <243,1> <247,1>
Face verts 3 flags 0 mat 0
<243,1> <248,1> <247,1>
Face verts 3 flags 0 mat 0
<243,1> <244,1> <248,1>
Face verts 3 flags 0 mat 0
<244,1> <245,1> <248,1>
Face verts 3 flags 0 mat 0
<248,1> <245,1> <249,1>
Face verts 3 flags 0 mat 0
<245,1> <246,1> <249,1>
Face verts 3 flags 0 mat 0
<245,1> <242,1> <246,1>
Face verts 3 flags 0 mat 1
<250,4> <256,4> <255,4>
Face verts 3 flags 0 mat 1
<250,4> <251,4> <256,4>
Face verts 3 flags 0 mat 1
<251,4> <252,4> <256,4>
Face verts 3 flags 0 mat 1
<256,4> <252,4> <257,4>
Face verts 3 flags 0 mat 1
<252,4> <258,4> <257,4>
Face verts 3 flags 0 mat 1
<252,4> <253,4> <258,4>
Face verts 3 flags 0 mat 1
<253,4> <254,4> <258,4>
Face verts 3 flags 0 mat 1
<258,4> <254,4> <259,4>
Face verts 3 flags 0 mat 1
<255,3> <256,3> <260,3>
Face verts 3 flags 0 mat 1
<260,3> <256,3> <261,3>
Face verts 3 flags 0 mat 1
<256,3> <262,3> <261,3>
Face verts 3 flags 0 mat 1
<256,3> <257,3> <262,3>
Face verts 3 flags 0 mat 1
<257,3> <258,3> <262,3>
Face verts 3 flags 0 mat 1
<262,3> <258,3> <263,3>
Face verts 3 flags 0 mat 1
<258,3> <264,3> <263,3>
Face verts 3 flags 0 mat 1
<258,3> <259,3> <264,3>
Face verts 3 flags 0 mat 1
<260,4> <266,4> <265,4>
Face verts 3 flags 0 mat 1
<260,4> <261,4> <266,4>
Face verts 3 flags 0 mat 1
<261,4> <262,4> <266,4>
Face verts 3 flags 0 mat 1
<266,4> <262,4> <267,4>
Face verts 3 flags 0 mat 1
<262,4> <268,4> <267,4>
Face verts 3 flags 0 mat 1
<262,4> <263,4> <268,4>
Face verts 3 flags 0 mat 1
<263,4> <264,4> <268,4>
Face verts 3 flags 0 mat 1
<268,4> <264,4> <269,4>
Face verts 3 flags 0 mat 1
<265,3> <266,3> <270,3>
Face verts 3 flags 0 mat 1
<270,3> <266,3> <271,3>
Face verts 3 flags 0 mat 1
<266,3> <272,3> <271,3>
Face verts 3 flags 0 mat 1
<266,3> <267,3> <272,3>
Face verts 3 flags 0 mat 1
<267,3> <268,3> <272,3>
Face verts 3 flags 0 mat 1
<272,3> <268,3> <273,3>
Face verts 3 flags 0 mat 1
<268,3> <274,3> <273,3>
Face verts 3 flags 0 mat 1
<268,3> <269,3> <274,3>
Face verts 3 flags 0 mat 1
<270,4> <276,4> <275,4>
Face verts 3 flags 0 mat 1
<270,4> <271,4> <276,4>
Face verts 3 flags 0 mat 1
<271,4> <272,4> <276,4>
Face verts 3 flags 0 mat 1
<276,4> <272,4> <277,4>
Face verts 3 flags 0 mat 1
<272,4> <278,4> <277,4>
Face verts 3 flags 0 mat 1
<272,4> <273,4> <278,4>
Face verts 3 flags 0 mat 1
<273,4> <274,4> <278,4>
Face verts 3 flags 0 mat 1
<278,4> <274,4> <279,4>
Face verts 3 flags 0 mat 1
<280,4> <285,4> <286,4>
Face verts 3 flags 0 mat 1
<280,4> <286,4> <281,4>
Face verts 3 flags 0 mat 1
<281,4> <286,4> <282,4>
Face verts 3 flags 0 mat 1
<286,4> <287,4> <282,4>
Face verts 3 flags 0 mat 1
<282,4> <287,4> <288,4>
Face verts 3 flags 0 mat 1
<282,4> <288,4> <283,4>
Face verts 3 flags 0 mat 1
<283,4> <288,4> <284,4>
Face verts 3 flags 0 mat 1
<288,4> <289,4> <284,4>
Face verts 3 flags 0 mat 1
<285,3> <290,3> <286,3>
Face verts 3 flags 0 mat 1
<290,3> <291,3> <286,3>
Face verts 3 flags 0 mat 1
<286,3> <291,3> <292,3>
Face verts 3 flags 0 mat 1
<286,3> <292,3> <287,3>
Face verts 3 flags 0 mat 1
<287,3> <292,3> <288,3>
Face verts 3 flags 0 mat 1
<292,3> <293,3> <288,3>
Face verts 3 flags 0 mat 1
<288,3> <293,3> <294,3>
Face verts 3 flags 0 mat 1
<288,3> <294,3> <289,3>
Face verts 3 flags 0 mat 1
<290,4> <295,4> <296,4>
Face verts 3 flags 0 mat 1
<290,4> <296,4> <291,4>
Face verts 3 flags 0 mat 1
<291,4> <296,4> <292,4>
Face verts 3 flags 0 mat 1
<296,4> <297,4> <292,4>
Face verts 3 flags 0 mat 1
<292,4> <297,4> <298,4>
Face verts 3 flags 0 mat 1
<292,4> <298,4> <293,4>
Face verts 3 flags 0 mat 1
<293,4> <298,4> <294,4>
Face verts 3 flags 0 mat 1
<298,4> <299,4> <294,4>
Face verts 3 flags 0 mat 1
<295,3> <300,3> <296,3>
Face verts 3 flags 0 mat 1
<300,3> <301,3> <296,3>
Face verts 3 flags 0 mat 1
<296,3> <301,3> <302,3>
Face verts 3 flags 0 mat 1
<296,3> <302,3> <297,3>
Face verts 3 flags 0 mat 1
<297,3> <302,3> <298,3>
Face verts 3 flags 0 mat 1
<302,3> <303,3> <298,3>
Face verts 3 flags 0 mat 1
<298,3> <303,3> <304,3>
Face verts 3 flags 0 mat 1
<298,3> <304,3> <299,3>
Face verts 3 flags 0 mat 1
<300,4> <305,4> <306,4>
Face verts 3 flags 0 mat 1
<300,4> <306,4> <301,4>
Face verts 3 flags 0 mat 1
<301,4> <306,4> <302,4>
Face verts 3 flags 0 mat 1
<306,4> <307,4> <302,4>
Face verts 3 flags 0 mat 1
<302,4> <307,4> <308,4>
Face verts 3 flags 0 mat 1
<302,4> <308,4> <303,4>
Face verts 3 flags 0 mat 1
<303,4> <308,4> <304,4>
Face verts 3 flags 0 mat 1
<308,4> <309,4> <304,4>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\boat.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "matte"
mat# 1
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\boat.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "plastic"
