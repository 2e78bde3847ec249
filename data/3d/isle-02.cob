# isle-02: made by art/build.sh, do not edit
Name isle-02
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 161
-2.88 -8.64 -0.3183
-2.16 -8.64 -0.1069
-2.16 -7.92 -0.2813
-2.88 -7.92 -0.4799
-1.44 -8.64 0.0399
-1.44 -7.92 -0.0861
-1.44 -7.2 -0.2867
-2.16 -7.2 -0.4701
-0.72 -8.64 0.1777
-0.72 -7.92 0.027
-0.72 -7.2 -0.109
-0.72 -6.48 -0.3317
-1.44 -6.48 -0.495
0 -8.64 0.2534
0 -7.92 0.12
0 -7.2 0.0092
0 -6.48 -0.1708
0.72 -8.64 0.3149
0.72 -7.92 0.2476
0.72 -7.2 0.2252
0.72 -6.48 -0.0245
0.72 -5.76 -0.2605
0 -5.76 -0.4082
1.44 -8.64 0.3105
1.44 -7.92 0.3028
1.44 -7.2 0.3986
1.44 -6.48 0.128
1.44 -5.76 -0.1179
1.44 -5.04 -0.3606
0.72 -5.04 -0.4974
2.16 -8.64 0.3569
2.16 -7.92 0.2586
2.16 -7.2 0.3338
2.16 -6.48 0.3033
2.16 -5.76 -0.008
2.16 -5.04 -0.2192
2.88 -8.64 0.3198
2.88 -7.92 0.2535
2.88 -7.2 0.2013
2.88 -6.48 0.2095
2.88 -5.76 0.1135
2.88 -5.04 -0.0755
2.88 -4.32 -0.2939
2.16 -4.32 -0.4475
3.6 -8.64 0.3746
3.6 -7.92 0.2926
3.6 -7.2 0.2375
3.6 -6.48 0.1738
3.6 -5.76 0.1132
3.6 -5.04 0.0151
3.6 -4.32 -0.1299
4.32 -8.64 0.3712
4.32 -7.92 0.3468
4.32 -7.2 0.3007
4.32 -6.48 0.2379
4.32 -5.76 0.1693
4.32 -5.04 0.0871
4.32 -4.32 0.0041
4.32 -3.6 -0.1185
3.6 -3.6 -0.3158
4.32 -2.88 -0.2702
3.6 -2.88 -0.4817
5.04 -8.64 0.3112
5.04 -7.92 0.3634
5.04 -7.2 0.3671
5.04 -6.48 0.3458
5.04 -5.76 0.2568
5.04 -5.04 0.1621
5.04 -4.32 0.0836
5.04 -3.6 0.0271
5.04 -2.88 -0.0356
5.04 -2.16 -0.1215
4.32 -2.16 -0.4102
5.04 -1.44 -0.0456
4.32 -1.44 -0.5325
5.04 -0.72 0.0059
4.32 -0.72 -0.6457
5.04 0 -0.0994
4.32 0 -0.7593
5.04 0.72 -0.4065
4.32 0.72 -0.8758
5.76 -8.64 0.1752
5.76 -7.92 0.2748
5.76 -7.2 0.3656
5.76 -6.48 0.3461
5.76 -5.76 0.3017
5.76 -5.04 0.2138
5.76 -4.32 0.1431
5.76 -3.6 0.098
5.76 -2.88 0.1232
5.76 -2.16 0.3369
5.76 -1.44 0.5305
5.76 -0.72 0.5967
5.76 0 0.5774
5.76 0.72 0.3839
5.76 1.44 -0.1323
5.04 1.44 -0.7699
6.48 -8.64 0.08
6.48 -7.92 0.1479
6.48 -7.2 0.2555
6.48 -6.48 0.3527
6.48 -5.76 0.3346
6.48 -5.04 0.2742
6.48 -4.32 0.237
6.48 -3.6 0.1704
6.48 -2.88 0.3357
6.48 -2.16 0.5847
6.48 -1.44 0.62
6.48 -0.72 0.62
6.48 0 0.62
6.48 0.72 0.62
6.48 1.44 0.4214
6.48 2.16 -0.2777
5.76 2.16 -0.7074
7.2 -7.92 0.08
7.2 -7.2 0.139
7.2 -6.48 0.2563
7.2 -5.76 0.3627
7.2 -5.04 0.3975
7.2 -4.32 0.3381
7.2 -3.6 0.2579
7.2 -2.88 0.4765
7.2 -2.16 0.62
7.2 -1.44 0.62
7.2 -0.72 0.62
7.2 0 0.62
7.2 0.72 0.62
7.2 1.44 0.6032
7.2 2.16 0.0648
7.2 2.88 -0.5865
6.48 2.88 -0.7236
7.92 -7.2 0.08
7.92 -6.48 0.1483
7.92 -5.76 0.2782
7.92 -5.04 0.3832
7.92 -4.32 0.415
7.92 -3.6 0.3987
7.92 -2.88 0.5392
7.92 -2.16 0.62
7.92 -1.44 0.62
7.92 -0.72 0.62
7.92 0 0.62
7.92 0.72 0.62
7.92 1.44 0.6178
7.92 2.16 0.1921
7.92 2.88 -0.4708
8.64 -6.48 0.08
8.64 -5.76 0.1764
8.64 -5.04 0.3246
8.64 -4.32 0.418
8.64 -3.6 0.4436
8.64 -2.88 0.5179
8.64 -2.16 0.6199
8.64 -1.44 0.62
8.64 -0.72 0.62
8.64 0 0.62
8.64 0.72 0.62
8.64 1.44 0.5845
8.64 2.16 0.1495
8.64 2.88 -0.3839
0 0 15.3364
Texture Vertices 160
0.3333 0
0.375 0
0.375 0.0417
0.3333 0.0417
0.4167 0
0.4167 0.0417
0.4167 0.0833
0.375 0.0833
0.4583 0
0.4583 0.0417
0.4583 0.0833
0.4583 0.125
0.4167 0.125
0.5 0
0.5 0.0417
0.5 0.0833
0.5 0.125
0.5417 0
0.5417 0.0417
0.5417 0.0833
0.5417 0.125
0.5417 0.1667
0.5 0.1667
0.5833 0
0.5833 0.0417
0.5833 0.0833
0.5833 0.125
0.5833 0.1667
0.5833 0.2083
0.5417 0.2083
0.625 0
0.625 0.0417
0.625 0.0833
0.625 0.125
0.625 0.1667
0.625 0.2083
0.6667 0
0.6667 0.0417
0.6667 0.0833
0.6667 0.125
0.6667 0.1667
0.6667 0.2083
0.6667 0.25
0.625 0.25
0.7083 0
0.7083 0.0417
0.7083 0.0833
0.7083 0.125
0.7083 0.1667
0.7083 0.2083
0.7083 0.25
0.75 0
0.75 0.0417
0.75 0.0833
0.75 0.125
0.75 0.1667
0.75 0.2083
0.75 0.25
0.75 0.2917
0.7083 0.2917
0.75 0.3333
0.7083 0.3333
0.7917 0
0.7917 0.0417
0.7917 0.0833
0.7917 0.125
0.7917 0.1667
0.7917 0.2083
0.7917 0.25
0.7917 0.2917
0.7917 0.3333
0.7917 0.375
0.75 0.375
0.7917 0.4167
0.75 0.4167
0.7917 0.4583
0.75 0.4583
0.7917 0.5
0.75 0.5
0.7917 0.5417
0.75 0.5417
0.8333 0
0.8333 0.0417
0.8333 0.0833
0.8333 0.125
0.8333 0.1667
0.8333 0.2083
0.8333 0.25
0.8333 0.2917
0.8333 0.3333
0.8333 0.375
0.8333 0.4167
0.8333 0.4583
0.8333 0.5
0.8333 0.5417
0.8333 0.5833
0.7917 0.5833
0.875 0
0.875 0.0417
0.875 0.0833
0.875 0.125
0.875 0.1667
0.875 0.2083
0.875 0.25
0.875 0.2917
0.875 0.3333
0.875 0.375
0.875 0.4167
0.875 0.4583
0.875 0.5
0.875 0.5417
0.875 0.5833
0.875 0.625
0.8333 0.625
0.9167 0.0417
0.9167 0.0833
0.9167 0.125
0.9167 0.1667
0.9167 0.2083
0.9167 0.25
0.9167 0.2917
0.9167 0.3333
0.9167 0.375
0.9167 0.4167
0.9167 0.4583
0.9167 0.5
0.9167 0.5417
0.9167 0.5833
0.9167 0.625
0.9167 0.6667
0.875 0.6667
0.9583 0.0833
0.9583 0.125
0.9583 0.1667
0.9583 0.2083
0.9583 0.25
0.9583 0.2917
0.9583 0.3333
0.9583 0.375
0.9583 0.4167
0.9583 0.4583
0.9583 0.5
0.9583 0.5417
0.9583 0.5833
0.9583 0.625
0.9583 0.6667
1 0.125
1 0.1667
1 0.2083
1 0.25
1 0.2917
1 0.3333
1 0.375
1 0.4167
1 0.4583
1 0.5
1 0.5417
1 0.5833
1 0.625
1 0.6667
Faces 254
Face verts 3 flags 0 mat 0
<0,0> <2,2> <1,1>
Face verts 3 flags 0 mat 0
<0,0> <3,3> <2,2>
Face verts 3 flags 0 mat 0
<1,1> <5,5> <4,4>
Face verts 3 flags 0 mat 0
<1,1> <2,2> <5,5>
Face verts 3 flags 0 mat 0
<2,2> <6,6> <5,5>
Face verts 3 flags 0 mat 0
<2,2> <7,7> <6,6>
Face verts 3 flags 0 mat 0
<4,4> <9,9> <8,8>
Face verts 3 flags 0 mat 0
<4,4> <5,5> <9,9>
Face verts 3 flags 0 mat 0
<5,5> <10,10> <9,9>
Face verts 3 flags 0 mat 0
<5,5> <6,6> <10,10>
Face verts 3 flags 0 mat 0
<6,6> <11,11> <10,10>
Face verts 3 flags 0 mat 0
<6,6> <12,12> <11,11>
Face verts 3 flags 0 mat 0
<8,8> <14,14> <13,13>
Face verts 3 flags 0 mat 0
<8,8> <9,9> <14,14>
Face verts 3 flags 0 mat 0
<9,9> <15,15> <14,14>
Face verts 3 flags 0 mat 0
<9,9> <10,10> <15,15>
Face verts 3 flags 0 mat 0
<10,10> <16,16> <15,15>
Face verts 3 flags 0 mat 0
<10,10> <11,11> <16,16>
Face verts 3 flags 0 mat 0
<13,13> <18,18> <17,17>
Face verts 3 flags 0 mat 0
<13,13> <14,14> <18,18>
Face verts 3 flags 0 mat 0
<14,14> <19,19> <18,18>
Face verts 3 flags 0 mat 0
<14,14> <15,15> <19,19>
Face verts 3 flags 0 mat 0
<15,15> <20,20> <19,19>
Face verts 3 flags 0 mat 0
<15,15> <16,16> <20,20>
Face verts 3 flags 0 mat 0
<16,16> <21,21> <20,20>
Face verts 3 flags 0 mat 0
<16,16> <22,22> <21,21>
Face verts 3 flags 0 mat 0
<17,17> <24,24> <23,23>
Face verts 3 flags 0 mat 0
<17,17> <18,18> <24,24>
Face verts 3 flags 0 mat 0
<18,18> <19,19> <24,24>
Face verts 3 flags 0 mat 0
<24,24> <19,19> <25,25>
Face verts 3 flags 0 mat 0
<19,19> <26,26> <25,25>
Face verts 3 flags 0 mat 0
<19,19> <20,20> <26,26>
Face verts 3 flags 0 mat 0
<20,20> <27,27> <26,26>
Face verts 3 flags 0 mat 0
<20,20> <21,21> <27,27>
Face verts 3 flags 0 mat 0
<21,21> <28,28> <27,27>
Face verts 3 flags 0 mat 0
<21,21> <29,29> <28,28>
Face verts 3 flags 0 mat 0
<23,23> <31,31> <30,30>
Face verts 3 flags 0 mat 0
<23,23> <24,24> <31,31>
Face verts 3 flags 0 mat 0
<24,24> <32,32> <31,31>
Face verts 3 flags 0 mat 0
<24,24> <25,25> <32,32>
Face verts 3 flags 0 mat 0
<25,25> <33,33> <32,32>
Face verts 3 flags 0 mat 0
<25,25> <26,26> <33,33>
Face verts 3 flags 0 mat 0
<26,26> <34,34> <33,33>
Face verts 3 flags 0 mat 0
<26,26> <27,27> <34,34>
Face verts 3 flags 0 mat 0
<27,27> <35,35> <34,34>
Face verts 3 flags 0 mat 0
<27,27> <28,28> <35,35>
Face verts 3 flags 0 mat 0
<30,30> <31,31> <36,36>
Face verts 3 flags 0 mat 0
<36,36> <31,31> <37,37>
Face verts 3 flags 0 mat 0
<31,31> <38,38> <37,37>
Face verts 3 flags 0 mat 0
<31,31> <32,32> <38,38>
Face verts 3 flags 0 mat 0
<32,32> <33,33> <38,38>
Face verts 3 flags 0 mat 0
<38,38> <33,33> <39,39>
Face verts 3 flags 0 mat 0
<33,33> <40,40> <39,39>
Face verts 3 flags 0 mat 0
<33,33> <34,34> <40,40>
Face verts 3 flags 0 mat 0
<34,34> <41,41> <40,40>
Face verts 3 flags 0 mat 0
<34,34> <35,35> <41,41>
Face verts 3 flags 0 mat 0
<35,35> <42,42> <41,41>
Face verts 3 flags 0 mat 0
<35,35> <43,43> <42,42>
Face verts 3 flags 0 mat 0
<36,36> <45,45> <44,44>
Face verts 3 flags 0 mat 0
<36,36> <37,37> <45,45>
Face verts 3 flags 0 mat 0
<37,37> <46,46> <45,45>
Face verts 3 flags 0 mat 0
<37,37> <38,38> <46,46>
Face verts 3 flags 0 mat 0
<38,38> <47,47> <46,46>
Face verts 3 flags 0 mat 0
<38,38> <39,39> <47,47>
Face verts 3 flags 0 mat 0
<39,39> <40,40> <47,47>
Face verts 3 flags 0 mat 0
<47,47> <40,40> <48,48>
Face verts 3 flags 0 mat 0
<40,40> <49,49> <48,48>
Face verts 3 flags 0 mat 0
<40,40> <41,41> <49,49>
Face verts 3 flags 0 mat 0
<41,41> <50,50> <49,49>
Face verts 3 flags 0 mat 0
<41,41> <42,42> <50,50>
Face verts 3 flags 0 mat 0
<44,44> <52,52> <51,51>
Face verts 3 flags 0 mat 0
<44,44> <45,45> <52,52>
Face verts 3 flags 0 mat 0
<45,45> <53,53> <52,52>
Face verts 3 flags 0 mat 0
<45,45> <46,46> <53,53>
Face verts 3 flags 0 mat 0
<46,46> <54,54> <53,53>
Face verts 3 flags 0 mat 0
<46,46> <47,47> <54,54>
Face verts 3 flags 0 mat 0
<47,47> <55,55> <54,54>
Face verts 3 flags 0 mat 0
<47,47> <48,48> <55,55>
Face verts 3 flags 0 mat 0
<48,48> <56,56> <55,55>
Face verts 3 flags 0 mat 0
<48,48> <49,49> <56,56>
Face verts 3 flags 0 mat 0
<49,49> <57,57> <56,56>
Face verts 3 flags 0 mat 0
<49,49> <50,50> <57,57>
Face verts 3 flags 0 mat 0
<50,50> <58,58> <57,57>
Face verts 3 flags 0 mat 0
<50,50> <59,59> <58,58>
Face verts 3 flags 0 mat 0
<59,59> <60,60> <58,58>
Face verts 3 flags 0 mat 0
<59,59> <61,61> <60,60>
Face verts 3 flags 0 mat 0
<51,51> <63,63> <62,62>
Face verts 3 flags 0 mat 0
<51,51> <52,52> <63,63>
Face verts 3 flags 0 mat 0
<52,52> <64,64> <63,63>
Face verts 3 flags 0 mat 0
<52,52> <53,53> <64,64>
Face verts 3 flags 0 mat 0
<53,53> <65,65> <64,64>
Face verts 3 flags 0 mat 0
<53,53> <54,54> <65,65>
Face verts 3 flags 0 mat 0
<54,54> <66,66> <65,65>
Face verts 3 flags 0 mat 0
<54,54> <55,55> <66,66>
Face verts 3 flags 0 mat 0
<55,55> <67,67> <66,66>
Face verts 3 flags 0 mat 0
<55,55> <56,56> <67,67>
Face verts 3 flags 0 mat 0
<56,56> <68,68> <67,67>
Face verts 3 flags 0 mat 0
<56,56> <57,57> <68,68>
Face verts 3 flags 0 mat 0
<57,57> <69,69> <68,68>
Face verts 3 flags 0 mat 0
<57,57> <58,58> <69,69>
Face verts 3 flags 0 mat 0
<58,58> <70,70> <69,69>
Face verts 3 flags 0 mat 0
<58,58> <60,60> <70,70>
Face verts 3 flags 0 mat 0
<60,60> <71,71> <70,70>
Face verts 3 flags 0 mat 0
<60,60> <72,72> <71,71>
Face verts 3 flags 0 mat 0
<72,72> <73,73> <71,71>
Face verts 3 flags 0 mat 0
<72,72> <74,74> <73,73>
Face verts 3 flags 0 mat 0
<74,74> <75,75> <73,73>
Face verts 3 flags 0 mat 0
<74,74> <76,76> <75,75>
Face verts 3 flags 0 mat 0
<76,76> <77,77> <75,75>
Face verts 3 flags 0 mat 0
<76,76> <78,78> <77,77>
Face verts 3 flags 0 mat 0
<78,78> <79,79> <77,77>
Face verts 3 flags 0 mat 0
<78,78> <80,80> <79,79>
Face verts 3 flags 0 mat 0
<62,62> <82,82> <81,81>
Face verts 3 flags 0 mat 0
<62,62> <63,63> <82,82>
Face verts 3 flags 0 mat 0
<63,63> <83,83> <82,82>
Face verts 3 flags 0 mat 0
<63,63> <64,64> <83,83>
Face verts 3 flags 0 mat 0
<64,64> <65,65> <83,83>
Face verts 3 flags 0 mat 0
<83,83> <65,65> <84,84>
Face verts 3 flags 0 mat 0
<65,65> <85,85> <84,84>
Face verts 3 flags 0 mat 0
<65,65> <66,66> <85,85>
Face verts 3 flags 0 mat 0
<66,66> <86,86> <85,85>
Face verts 3 flags 0 mat 0
<66,66> <67,67> <86,86>
Face verts 3 flags 0 mat 0
<67,67> <87,87> <86,86>
Face verts 3 flags 0 mat 0
<67,67> <68,68> <87,87>
Face verts 3 flags 0 mat 0
<68,68> <88,88> <87,87>
Face verts 3 flags 0 mat 0
<68,68> <69,69> <88,88>
Face verts 3 flags 0 mat 0
<69,69> <89,89> <88,88>
Face verts 3 flags 0 mat 0
<69,69> <70,70> <89,89>
Face verts 3 flags 0 mat 0
<70,70> <71,71> <89,89>
Face verts 3 flags 0 mat 0
<89,89> <71,71> <90,90>
Face verts 3 flags 0 mat 0
<71,71> <73,73> <90,90>
Face verts 3 flags 0 mat 0
<90,90> <73,73> <91,91>
Face verts 3 flags 0 mat 0
<73,73> <75,75> <91,91>
Face verts 3 flags 0 mat 0
<91,91> <75,75> <92,92>
Face verts 3 flags 0 mat 0
<75,75> <93,93> <92,92>
Face verts 3 flags 0 mat 0
<75,75> <77,77> <93,93>
Face verts 3 flags 0 mat 0
<77,77> <94,94> <93,93>
Face verts 3 flags 0 mat 0
<77,77> <79,79> <94,94>
Face verts 3 flags 0 mat 0
<79,79> <95,95> <94,94>
Face verts 3 flags 0 mat 0
<79,79> <96,96> <95,95>
Face verts 3 flags 0 mat 0
<81,81> <98,98> <97,97>
Face verts 3 flags 0 mat 0
<81,81> <82,82> <98,98>
Face verts 3 flags 0 mat 0
<82,82> <99,99> <98,98>
Face verts 3 flags 0 mat 0
<82,82> <83,83> <99,99>
Face verts 3 flags 0 mat 0
<83,83> <100,100> <99,99>
Face verts 3 flags 0 mat 0
<83,83> <84,84> <100,100>
Face verts 3 flags 0 mat 0
<84,84> <101,101> <100,100>
Face verts 3 flags 0 mat 0
<84,84> <85,85> <101,101>
Face verts 3 flags 0 mat 0
<85,85> <102,102> <101,101>
Face verts 3 flags 0 mat 0
<85,85> <86,86> <102,102>
Face verts 3 flags 0 mat 0
<86,86> <103,103> <102,102>
Face verts 3 flags 0 mat 0
<86,86> <87,87> <103,103>
Face verts 3 flags 0 mat 0
<87,87> <104,104> <103,103>
Face verts 3 flags 0 mat 0
<87,87> <88,88> <104,104>
Face verts 3 flags 0 mat 0
<88,88> <89,89> <104,104>
Face verts 3 flags 0 mat 0
<104,104> <89,89> <105,105>
Face verts 3 flags 0 mat 0
<89,89> <90,90> <105,105>
Face verts 3 flags 0 mat 0
<105,105> <90,90> <106,106>
Face verts 3 flags 0 mat 0
<90,90> <91,91> <106,106>
Face verts 3 flags 0 mat 0
<106,106> <91,91> <107,107>
Face verts 3 flags 0 mat 0
<91,91> <92,92> <107,107>
Face verts 3 flags 0 mat 0
<107,107> <92,92> <108,108>
Face verts 3 flags 0 mat 0
<92,92> <109,109> <108,108>
Face verts 3 flags 0 mat 0
<92,92> <93,93> <109,109>
Face verts 3 flags 0 mat 0
<93,93> <110,110> <109,109>
Face verts 3 flags 0 mat 0
<93,93> <94,94> <110,110>
Face verts 3 flags 0 mat 0
<94,94> <111,111> <110,110>
Face verts 3 flags 0 mat 0
<94,94> <95,95> <111,111>
Face verts 3 flags 0 mat 0
<95,95> <112,112> <111,111>
Face verts 3 flags 0 mat 0
<95,95> <113,113> <112,112>
Face verts 3 flags 0 mat 0
<98,98> <115,115> <114,114>
Face verts 3 flags 0 mat 0
<98,98> <99,99> <115,115>
Face verts 3 flags 0 mat 0
<99,99> <116,116> <115,115>
Face verts 3 flags 0 mat 0
<99,99> <100,100> <116,116>
Face verts 3 flags 0 mat 0
<100,100> <117,117> <116,116>
Face verts 3 flags 0 mat 0
<100,100> <101,101> <117,117>
Face verts 3 flags 0 mat 0
<101,101> <118,118> <117,117>
Face verts 3 flags 0 mat 0
<101,101> <102,102> <118,118>
Face verts 3 flags 0 mat 0
<102,102> <119,119> <118,118>
Face verts 3 flags 0 mat 0
<102,102> <103,103> <119,119>
Face verts 3 flags 0 mat 0
<103,103> <120,120> <119,119>
Face verts 3 flags 0 mat 0
<103,103> <104,104> <120,120>
Face verts 3 flags 0 mat 0
<104,104> <105,105> <120,120>
Face verts 3 flags 0 mat 0
<120,120> <105,105> <121,121>
Face verts 3 flags 0 mat 0
<105,105> <106,106> <121,121>
Face verts 3 flags 0 mat 0
<121,121> <106,106> <122,122>
Face verts 3 flags 0 mat 0
<106,106> <107,107> <122,122>
Face verts 3 flags 0 mat 0
<122,122> <107,107> <123,123>
Face verts 3 flags 0 mat 0
<107,107> <108,108> <123,123>
Face verts 3 flags 0 mat 0
<123,123> <108,108> <124,124>
Face verts 3 flags 0 mat 0
<108,108> <109,109> <124,124>
Face verts 3 flags 0 mat 0
<124,124> <109,109> <125,125>
Face verts 3 flags 0 mat 0
<109,109> <110,110> <125,125>
Face verts 3 flags 0 mat 0
<125,125> <110,110> <126,126>
Face verts 3 flags 0 mat 0
<110,110> <127,127> <126,126>
Face verts 3 flags 0 mat 0
<110,110> <111,111> <127,127>
Face verts 3 flags 0 mat 0
<111,111> <128,128> <127,127>
Face verts 3 flags 0 mat 0
<111,111> <112,112> <128,128>
Face verts 3 flags 0 mat 0
<112,112> <129,129> <128,128>
Face verts 3 flags 0 mat 0
<112,112> <130,130> <129,129>
Face verts 3 flags 0 mat 0
<115,115> <132,132> <131,131>
Face verts 3 flags 0 mat 0
<115,115> <116,116> <132,132>
Face verts 3 flags 0 mat 0
<116,116> <133,133> <132,132>
Face verts 3 flags 0 mat 0
<116,116> <117,117> <133,133>
Face verts 3 flags 0 mat 0
<117,117> <134,134> <133,133>
Face verts 3 flags 0 mat 0
<117,117> <118,118> <134,134>
Face verts 3 flags 0 mat 0
<118,118> <135,135> <134,134>
Face verts 3 flags 0 mat 0
<118,118> <119,119> <135,135>
Face verts 3 flags 0 mat 0
<119,119> <136,136> <135,135>
Face verts 3 flags 0 mat 0
<119,119> <120,120> <136,136>
Face verts 3 flags 0 mat 0
<120,120> <121,121> <136,136>
Face verts 3 flags 0 mat 0
<136,136> <121,121> <137,137>
Face verts 3 flags 0 mat 0
<121,121> <122,122> <137,137>
Face verts 3 flags 0 mat 0
<137,137> <122,122> <138,138>
Face verts 3 flags 0 mat 0
<122,122> <123,123> <138,138>
Face verts 3 flags 0 mat 0
<138,138> <123,123> <139,139>
Face verts 3 flags 0 mat 0
<123,123> <124,124> <139,139>
Face verts 3 flags 0 mat 0
<139,139> <124,124> <140,140>
Face verts 3 flags 0 mat 0
<124,124> <125,125> <140,140>
Face verts 3 flags 0 mat 0
<140,140> <125,125> <141,141>
Face verts 3 flags 0 mat 0
<125,125> <126,126> <141,141>
Face verts 3 flags 0 mat 0
<141,141> <126,126> <142,142>
Face verts 3 flags 0 mat 0
<126,126> <143,143> <142,142>
Face verts 3 flags 0 mat 0
<126,126> <127,127> <143,143>
Face verts 3 flags 0 mat 0
<127,127> <144,144> <143,143>
Face verts 3 flags 0 mat 0
<127,127> <128,128> <144,144>
Face verts 3 flags 0 mat 0
<128,128> <145,145> <144,144>
Face verts 3 flags 0 mat 0
<128,128> <129,129> <145,145>
Face verts 3 flags 0 mat 0
<132,132> <147,147> <146,146>
Face verts 3 flags 0 mat 0
<132,132> <133,133> <147,147>
Face verts 3 flags 0 mat 0
<133,133> <148,148> <147,147>
Face verts 3 flags 0 mat 0
<133,133> <134,134> <148,148>
Face verts 3 flags 0 mat 0
<134,134> <149,149> <148,148>
Face verts 3 flags 0 mat 0
<134,134> <135,135> <149,149>
Face verts 3 flags 0 mat 0
<135,135> <136,136> <149,149>
Face verts 3 flags 0 mat 0
<149,149> <136,136> <150,150>
Face verts 3 flags 0 mat 0
<136,136> <137,137> <150,150>
Face verts 3 flags 0 mat 0
<150,150> <137,137> <151,151>
Face verts 3 flags 0 mat 0
<137,137> <152,152> <151,151>
Face verts 3 flags 0 mat 0
<137,137> <138,138> <152,152>
Face verts 3 flags 0 mat 0
<138,138> <153,153> <152,152>
Face verts 3 flags 0 mat 0
<138,138> <139,139> <153,153>
Face verts 3 flags 0 mat 0
<139,139> <140,140> <153,153>
Face verts 3 flags 0 mat 0
<153,153> <140,140> <154,154>
Face verts 3 flags 0 mat 0
<140,140> <141,141> <154,154>
Face verts 3 flags 0 mat 0
<154,154> <141,141> <155,155>
Face verts 3 flags 0 mat 0
<141,141> <142,142> <155,155>
Face verts 3 flags 0 mat 0
<155,155> <142,142> <156,156>
Face verts 3 flags 0 mat 0
<142,142> <143,143> <156,156>
Face verts 3 flags 0 mat 0
<156,156> <143,143> <157,157>
Face verts 3 flags 0 mat 0
<143,143> <144,144> <157,157>
Face verts 3 flags 0 mat 0
<157,157> <144,144> <158,158>
Face verts 3 flags 0 mat 0
<144,144> <159,159> <158,158>
Face verts 3 flags 0 mat 0
<144,144> <145,145> <159,159>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\isle-02.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "plastic"
