# isle-00: made by art/build.sh, do not edit
Name isle-00
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 141
-1.44 6.48 -0.6079
-0.72 6.48 -0.3375
-0.72 7.2 -0.0812
-1.44 7.2 -0.5012
-0.72 7.92 0.1035
-1.44 7.92 -0.3485
-0.72 8.64 0.1976
-1.44 8.64 -0.2214
-0.72 5.76 -0.5242
0 5.76 -0.2708
0 6.48 0.0341
0 7.2 0.2427
0 7.92 0.3218
0 8.64 0.339
0 5.04 -0.4783
0.72 5.04 -0.2845
0.72 5.76 0.0173
0.72 6.48 0.2492
0.72 7.2 0.3369
0.72 7.92 0.34
0.72 8.64 0.34
0.72 4.32 -0.4697
1.44 4.32 -0.295
1.44 5.04 -0.0737
1.44 5.76 0.176
1.44 6.48 0.3209
1.44 7.2 0.34
1.44 7.92 0.34
1.44 8.64 0.34
2.16 4.32 -0.1261
2.16 5.04 0.0531
2.16 5.76 0.2469
2.16 6.48 0.3371
2.16 7.2 0.34
2.16 7.92 0.34
2.16 8.64 0.34
2.16 3.6 -0.3309
2.88 3.6 -0.1709
2.88 4.32 -0.0012
2.88 5.04 0.1134
2.88 5.76 0.2801
2.88 6.48 0.3381
2.88 7.2 0.34
2.88 7.92 0.34
2.88 8.64 0.34
2.88 2.88 -0.3779
3.6 2.88 -0.2188
3.6 3.6 -0.0227
3.6 4.32 0.0779
3.6 5.04 0.1356
3.6 5.76 0.2572
3.6 6.48 0.3341
3.6 7.2 0.34
3.6 7.92 0.34
3.6 8.64 0.34
3.6 2.16 -0.4211
4.32 2.16 -0.2567
4.32 2.88 -0.0577
4.32 3.6 0.1104
4.32 4.32 0.2615
4.32 5.04 0.2358
4.32 5.76 0.2799
4.32 6.48 0.3332
4.32 7.2 0.3397
4.32 7.92 0.34
4.32 8.64 0.34
4.32 1.44 -0.4528
5.04 1.44 -0.2821
5.04 2.16 -0.0885
5.04 2.88 0.0858
5.04 3.6 0.4826
5.04 4.32 0.6857
5.04 5.04 0.5967
5.04 5.76 0.4001
5.04 6.48 0.3406
5.04 7.2 0.3416
5.04 7.92 0.3386
5.04 8.64 0.2929
5.04 0.72 -0.4734
5.76 0.72 -0.3034
5.76 1.44 -0.1093
5.76 2.16 0.0277
5.76 2.88 0.5036
5.76 3.6 0.9521
5.76 4.32 1.1908
5.76 5.04 0.918
5.76 5.76 0.6542
5.76 6.48 0.404
5.76 7.2 0.3388
5.76 7.92 0.2702
5.76 8.64 0.1712
6.48 0.72 -0.1347
6.48 1.44 0.0101
6.48 2.16 0.1985
6.48 2.88 0.6578
6.48 3.6 1.3256
6.48 4.32 1.3518
6.48 5.04 1.1841
6.48 5.76 0.6861
6.48 6.48 0.4014
6.48 7.2 0.2595
6.48 7.92 0.1508
6.48 8.64 0.08
6.48 0 -0.3371
7.2 0 -0.1846
7.2 0.72 -0.0058
7.2 1.44 0.0822
7.2 2.16 0.1738
7.2 2.88 0.465
7.2 3.6 0.9636
7.2 4.32 1.4101
7.2 5.04 1.0194
7.2 5.76 0.5264
7.2 6.48 0.2577
7.2 7.2 0.1418
7.2 7.92 0.08
7.2 -0.72 -0.4017
7.92 -0.72 -0.278
7.92 0 -0.0488
7.92 0.72 0.0577
7.92 1.44 0.1416
7.92 2.16 0.2061
7.92 2.88 0.3145
7.92 3.6 0.6127
7.92 4.32 0.8865
7.92 5.04 0.7198
7.92 5.76 0.2827
7.92 6.48 0.1501
7.92 7.2 0.08
8.64 -0.72 -0.1803
8.64 0 0.0101
8.64 0.72 0.1162
8.64 1.44 0.189
8.64 2.16 0.2656
8.64 2.88 0.3438
8.64 3.6 0.4527
8.64 4.32 0.5438
8.64 5.04 0.3689
8.64 5.76 0.1758
8.64 6.48 0.08
0 0 15.3364
Texture Vertices 140
0.4167 0.875
0.4583 0.875
0.4167 0.9167
0.4583 0.9167
0.4167 0.9583
0.4583 0.9583
0.4167 1
0.4583 1
0.4583 0.8333
0.5 0.8333
0.5 0.875
0.5 0.9167
0.5 0.9583
0.5 1
0.5 0.7917
0.5417 0.7917
0.5417 0.8333
0.5417 0.875
0.5417 0.9167
0.5417 0.9583
0.5417 1
0.5417 0.75
0.5833 0.75
0.5833 0.7917
0.5833 0.8333
0.5833 0.875
0.5833 0.9167
0.5833 0.9583
0.5833 1
0.625 0.75
0.625 0.7917
0.625 0.8333
0.625 0.875
0.625 0.9167
0.625 0.9583
0.625 1
0.625 0.7083
0.6667 0.7083
0.6667 0.75
0.6667 0.7917
0.6667 0.8333
0.6667 0.875
0.6667 0.9167
0.6667 0.9583
0.6667 1
0.6667 0.6667
0.7083 0.6667
0.7083 0.7083
0.7083 0.75
0.7083 0.7917
0.7083 0.8333
0.7083 0.875
0.7083 0.9167
0.7083 0.9583
0.7083 1
0.7083 0.625
0.75 0.625
0.75 0.6667
0.75 0.7083
0.75 0.75
0.75 0.7917
0.75 0.8333
0.75 0.875
0.75 0.9167
0.75 0.9583
0.75 1
0.75 0.5833
0.7917 0.5833
0.7917 0.625
0.7917 0.6667
0.7917 0.7083
0.7917 0.75
0.7917 0.7917
0.7917 0.8333
0.7917 0.875
0.7917 0.9167
0.7917 0.9583
0.7917 1
0.7917 0.5417
0.8333 0.5417
0.8333 0.5833
0.8333 0.625
0.8333 0.6667
0.8333 0.7083
0.8333 0.75
0.8333 0.7917
0.8333 0.8333
0.8333 0.875
0.8333 0.9167
0.8333 0.9583
0.8333 1
0.875 0.5417
0.875 0.5833
0.875 0.625
0.875 0.6667
0.875 0.7083
0.875 0.75
0.875 0.7917
0.875 0.8333
0.875 0.875
0.875 0.9167
0.875 0.9583
0.875 1
0.875 0.5
0.9167 0.5
0.9167 0.5417
0.9167 0.5833
0.9167 0.625
0.9167 0.6667
0.9167 0.7083
0.9167 0.75
0.9167 0.7917
0.9167 0.8333
0.9167 0.875
0.9167 0.9167
0.9167 0.9583
0.9167 0.4583
0.9583 0.4583
0.9583 0.5
0.9583 0.5417
0.9583 0.5833
0.9583 0.625
0.9583 0.6667
0.9583 0.7083
0.9583 0.75
0.9583 0.7917
0.9583 0.8333
0.9583 0.875
0.9583 0.9167
1 0.4583
1 0.5
1 0.5417
1 0.5833
1 0.625
1 0.6667
1 0.7083
1 0.75
1 0.7917
1 0.8333
1 0.875
Faces 224
Face verts 3 flags 0 mat 0
<0,0> <3,2> <1,1>
Face verts 3 flags 0 mat 0
<1,1> <3,2> <2,3>
Face verts 3 flags 0 mat 0
<3,2> <5,4> <2,3>
Face verts 3 flags 0 mat 0
<2,3> <5,4> <4,5>
Face verts 3 flags 0 mat 0
<5,4> <7,6> <4,5>
Face verts 3 flags 0 mat 0
<4,5> <7,6> <6,7>
Face verts 3 flags 0 mat 0
<8,8> <1,1> <9,9>
Face verts 3 flags 0 mat 0
<9,9> <1,1> <10,10>
Face verts 3 flags 0 mat 0
<1,1> <2,3> <10,10>
Face verts 3 flags 0 mat 0
<10,10> <2,3> <11,11>
Face verts 3 flags 0 mat 0
<2,3> <4,5> <11,11>
Face verts 3 flags 0 mat 0
<11,11> <4,5> <12,12>
Face verts 3 flags 0 mat 0
<4,5> <6,7> <12,12>
Face verts 3 flags 0 mat 0
<12,12> <6,7> <13,13>
Face verts 3 flags 0 mat 0
<14,14> <9,9> <15,15>
Face verts 3 flags 0 mat 0
<15,15> <9,9> <16,16>
Face verts 3 flags 0 mat 0
<9,9> <10,10> <16,16>
Face verts 3 flags 0 mat 0
<16,16> <10,10> <17,17>
Face verts 3 flags 0 mat 0
<10,10> <11,11> <17,17>
Face verts 3 flags 0 mat 0
<17,17> <11,11> <18,18>
Face verts 3 flags 0 mat 0
<11,11> <12,12> <18,18>
Face verts 3 flags 0 mat 0
<18,18> <12,12> <19,19>
Face verts 3 flags 0 mat 0
<12,12> <13,13> <19,19>
Face verts 3 flags 0 mat 0
<19,19> <13,13> <20,20>
Face verts 3 flags 0 mat 0
<21,21> <15,15> <22,22>
Face verts 3 flags 0 mat 0
<22,22> <15,15> <23,23>
Face verts 3 flags 0 mat 0
<15,15> <16,16> <23,23>
Face verts 3 flags 0 mat 0
<23,23> <16,16> <24,24>
Face verts 3 flags 0 mat 0
<16,16> <17,17> <24,24>
Face verts 3 flags 0 mat 0
<24,24> <17,17> <25,25>
Face verts 3 flags 0 mat 0
<17,17> <18,18> <25,25>
Face verts 3 flags 0 mat 0
<25,25> <18,18> <26,26>
Face verts 3 flags 0 mat 0
<18,18> <19,19> <26,26>
Face verts 3 flags 0 mat 0
<26,26> <19,19> <27,27>
Face verts 3 flags 0 mat 0
<19,19> <20,20> <27,27>
Face verts 3 flags 0 mat 0
<27,27> <20,20> <28,28>
Face verts 3 flags 0 mat 0
<22,22> <23,23> <29,29>
Face verts 3 flags 0 mat 0
<29,29> <23,23> <30,30>
Face verts 3 flags 0 mat 0
<23,23> <24,24> <30,30>
Face verts 3 flags 0 mat 0
<30,30> <24,24> <31,31>
Face verts 3 flags 0 mat 0
<24,24> <25,25> <31,31>
Face verts 3 flags 0 mat 0
<31,31> <25,25> <32,32>
Face verts 3 flags 0 mat 0
<25,25> <26,26> <32,32>
Face verts 3 flags 0 mat 0
<32,32> <26,26> <33,33>
Face verts 3 flags 0 mat 0
<26,26> <27,27> <33,33>
Face verts 3 flags 0 mat 0
<33,33> <27,27> <34,34>
Face verts 3 flags 0 mat 0
<27,27> <28,28> <34,34>
Face verts 3 flags 0 mat 0
<34,34> <28,28> <35,35>
Face verts 3 flags 0 mat 0
<36,36> <29,29> <37,37>
Face verts 3 flags 0 mat 0
<37,37> <29,29> <38,38>
Face verts 3 flags 0 mat 0
<29,29> <30,30> <38,38>
Face verts 3 flags 0 mat 0
<38,38> <30,30> <39,39>
Face verts 3 flags 0 mat 0
<30,30> <31,31> <39,39>
Face verts 3 flags 0 mat 0
<39,39> <31,31> <40,40>
Face verts 3 flags 0 mat 0
<31,31> <32,32> <40,40>
Face verts 3 flags 0 mat 0
<40,40> <32,32> <41,41>
Face verts 3 flags 0 mat 0
<32,32> <33,33> <41,41>
Face verts 3 flags 0 mat 0
<41,41> <33,33> <42,42>
Face verts 3 flags 0 mat 0
<33,33> <34,34> <42,42>
Face verts 3 flags 0 mat 0
<42,42> <34,34> <43,43>
Face verts 3 flags 0 mat 0
<34,34> <35,35> <43,43>
Face verts 3 flags 0 mat 0
<43,43> <35,35> <44,44>
Face verts 3 flags 0 mat 0
<45,45> <37,37> <46,46>
Face verts 3 flags 0 mat 0
<46,46> <37,37> <47,47>
Face verts 3 flags 0 mat 0
<37,37> <38,38> <47,47>
Face verts 3 flags 0 mat 0
<47,47> <38,38> <48,48>
Face verts 3 flags 0 mat 0
<38,38> <39,39> <48,48>
Face verts 3 flags 0 mat 0
<48,48> <39,39> <49,49>
Face verts 3 flags 0 mat 0
<39,39> <50,50> <49,49>
Face verts 3 flags 0 mat 0
<39,39> <40,40> <50,50>
Face verts 3 flags 0 mat 0
<40,40> <51,51> <50,50>
Face verts 3 flags 0 mat 0
<40,40> <41,41> <51,51>
Face verts 3 flags 0 mat 0
<41,41> <52,52> <51,51>
Face verts 3 flags 0 mat 0
<41,41> <42,42> <52,52>
Face verts 3 flags 0 mat 0
<42,42> <43,43> <52,52>
Face verts 3 flags 0 mat 0
<52,52> <43,43> <53,53>
Face verts 3 flags 0 mat 0
<43,43> <44,44> <53,53>
Face verts 3 flags 0 mat 0
<53,53> <44,44> <54,54>
Face verts 3 flags 0 mat 0
<55,55> <46,46> <56,56>
Face verts 3 flags 0 mat 0
<56,56> <46,46> <57,57>
Face verts 3 flags 0 mat 0
<46,46> <47,47> <57,57>
Face verts 3 flags 0 mat 0
<57,57> <47,47> <58,58>
Face verts 3 flags 0 mat 0
<47,47> <48,48> <58,58>
Face verts 3 flags 0 mat 0
<58,58> <48,48> <59,59>
Face verts 3 flags 0 mat 0
<48,48> <49,49> <59,59>
Face verts 3 flags 0 mat 0
<59,59> <49,49> <60,60>
Face verts 3 flags 0 mat 0
<49,49> <50,50> <60,60>
Face verts 3 flags 0 mat 0
<60,60> <50,50> <61,61>
Face verts 3 flags 0 mat 0
<50,50> <51,51> <61,61>
Face verts 3 flags 0 mat 0
<61,61> <51,51> <62,62>
Face verts 3 flags 0 mat 0
<51,51> <63,63> <62,62>
Face verts 3 flags 0 mat 0
<51,51> <52,52> <63,63>
Face verts 3 flags 0 mat 0
<52,52> <64,64> <63,63>
Face verts 3 flags 0 mat 0
<52,52> <53,53> <64,64>
Face verts 3 flags 0 mat 0
<53,53> <54,54> <64,64>
Face verts 3 flags 0 mat 0
<64,64> <54,54> <65,65>
Face verts 3 flags 0 mat 0
<66,66> <56,56> <67,67>
Face verts 3 flags 0 mat 0
<67,67> <56,56> <68,68>
Face verts 3 flags 0 mat 0
<56,56> <57,57> <68,68>
Face verts 3 flags 0 mat 0
<68,68> <57,57> <69,69>
Face verts 3 flags 0 mat 0
<57,57> <58,58> <69,69>
Face verts 3 flags 0 mat 0
<69,69> <58,58> <70,70>
Face verts 3 flags 0 mat 0
<58,58> <59,59> <70,70>
Face verts 3 flags 0 mat 0
<70,70> <59,59> <71,71>
Face verts 3 flags 0 mat 0
<59,59> <72,72> <71,71>
Face verts 3 flags 0 mat 0
<59,59> <60,60> <72,72>
Face verts 3 flags 0 mat 0
<60,60> <73,73> <72,72>
Face verts 3 flags 0 mat 0
<60,60> <61,61> <73,73>
Face verts 3 flags 0 mat 0
<61,61> <74,74> <73,73>
Face verts 3 flags 0 mat 0
<61,61> <62,62> <74,74>
Face verts 3 flags 0 mat 0
<62,62> <63,63> <74,74>
Face verts 3 flags 0 mat 0
<74,74> <63,63> <75,75>
Face verts 3 flags 0 mat 0
<63,63> <76,76> <75,75>
Face verts 3 flags 0 mat 0
<63,63> <64,64> <76,76>
Face verts 3 flags 0 mat 0
<64,64> <65,65> <76,76>
Face verts 3 flags 0 mat 0
<76,76> <65,65> <77,77>
Face verts 3 flags 0 mat 0
<78,78> <67,67> <79,79>
Face verts 3 flags 0 mat 0
<79,79> <67,67> <80,80>
Face verts 3 flags 0 mat 0
<67,67> <68,68> <80,80>
Face verts 3 flags 0 mat 0
<80,80> <68,68> <81,81>
Face verts 3 flags 0 mat 0
<68,68> <69,69> <81,81>
Face verts 3 flags 0 mat 0
<81,81> <69,69> <82,82>
Face verts 3 flags 0 mat 0
<69,69> <70,70> <82,82>
Face verts 3 flags 0 mat 0
<82,82> <70,70> <83,83>
Face verts 3 flags 0 mat 0
<70,70> <71,71> <83,83>
Face verts 3 flags 0 mat 0
<83,83> <71,71> <84,84>
Face verts 3 flags 0 mat 0
<71,71> <85,85> <84,84>
Face verts 3 flags 0 mat 0
<71,71> <72,72> <85,85>
Face verts 3 flags 0 mat 0
<72,72> <86,86> <85,85>
Face verts 3 flags 0 mat 0
<72,72> <73,73> <86,86>
Face verts 3 flags 0 mat 0
<73,73> <87,87> <86,86>
Face verts 3 flags 0 mat 0
<73,73> <74,74> <87,87>
Face verts 3 flags 0 mat 0
<74,74> <88,88> <87,87>
Face verts 3 flags 0 mat 0
<74,74> <75,75> <88,88>
Face verts 3 flags 0 mat 0
<75,75> <76,76> <88,88>
Face verts 3 flags 0 mat 0
<88,88> <76,76> <89,89>
Face verts 3 flags 0 mat 0
<76,76> <77,77> <89,89>
Face verts 3 flags 0 mat 0
<89,89> <77,77> <90,90>
Face verts 3 flags 0 mat 0
<79,79> <80,80> <91,91>
Face verts 3 flags 0 mat 0
<91,91> <80,80> <92,92>
Face verts 3 flags 0 mat 0
<80,80> <81,81> <92,92>
Face verts 3 flags 0 mat 0
<92,92> <81,81> <93,93>
Face verts 3 flags 0 mat 0
<81,81> <82,82> <93,93>
Face verts 3 flags 0 mat 0
<93,93> <82,82> <94,94>
Face verts 3 flags 0 mat 0
<82,82> <83,83> <94,94>
Face verts 3 flags 0 mat 0
<94,94> <83,83> <95,95>
Face verts 3 flags 0 mat 0
<83,83> <84,84> <95,95>
Face verts 3 flags 0 mat 0
<95,95> <84,84> <96,96>
Face verts 3 flags 0 mat 0
<84,84> <97,97> <96,96>
Face verts 3 flags 0 mat 0
<84,84> <85,85> <97,97>
Face verts 3 flags 0 mat 0
<85,85> <98,98> <97,97>
Face verts 3 flags 0 mat 0
<85,85> <86,86> <98,98>
Face verts 3 flags 0 mat 0
<86,86> <99,99> <98,98>
Face verts 3 flags 0 mat 0
<86,86> <87,87> <99,99>
Face verts 3 flags 0 mat 0
<87,87> <88,88> <99,99>
Face verts 3 flags 0 mat 0
<99,99> <88,88> <100,100>
Face verts 3 flags 0 mat 0
<88,88> <89,89> <100,100>
Face verts 3 flags 0 mat 0
<100,100> <89,89> <101,101>
Face verts 3 flags 0 mat 0
<89,89> <90,90> <101,101>
Face verts 3 flags 0 mat 0
<101,101> <90,90> <102,102>
Face verts 3 flags 0 mat 0
<103,103> <91,91> <104,104>
Face verts 3 flags 0 mat 0
<104,104> <91,91> <105,105>
Face verts 3 flags 0 mat 0
<91,91> <92,92> <105,105>
Face verts 3 flags 0 mat 0
<105,105> <92,92> <106,106>
Face verts 3 flags 0 mat 0
<92,92> <93,93> <106,106>
Face verts 3 flags 0 mat 0
<106,106> <93,93> <107,107>
Face verts 3 flags 0 mat 0
<93,93> <108,108> <107,107>
Face verts 3 flags 0 mat 0
<93,93> <94,94> <108,108>
Face verts 3 flags 0 mat 0
<94,94> <109,109> <108,108>
Face verts 3 flags 0 mat 0
<94,94> <95,95> <109,109>
Face verts 3 flags 0 mat 0
<95,95> <110,110> <109,109>
Face verts 3 flags 0 mat 0
<95,95> <96,96> <110,110>
Face verts 3 flags 0 mat 0
<96,96> <97,97> <110,110>
Face verts 3 flags 0 mat 0
<110,110> <97,97> <111,111>
Face verts 3 flags 0 mat 0
<97,97> <98,98> <111,111>
Face verts 3 flags 0 mat 0
<111,111> <98,98> <112,112>
Face verts 3 flags 0 mat 0
<98,98> <99,99> <112,112>
Face verts 3 flags 0 mat 0
<112,112> <99,99> <113,113>
Face verts 3 flags 0 mat 0
<99,99> <100,100> <113,113>
Face verts 3 flags 0 mat 0
<113,113> <100,100> <114,114>
Face verts 3 flags 0 mat 0
<100,100> <101,101> <114,114>
Face verts 3 flags 0 mat 0
<114,114> <101,101> <115,115>
Face verts 3 flags 0 mat 0
<116,116> <104,104> <117,117>
Face verts 3 flags 0 mat 0
<117,117> <104,104> <118,118>
Face verts 3 flags 0 mat 0
<104,104> <105,105> <118,118>
Face verts 3 flags 0 mat 0
<118,118> <105,105> <119,119>
Face verts 3 flags 0 mat 0
<105,105> <106,106> <119,119>
Face verts 3 flags 0 mat 0
<119,119> <106,106> <120,120>
Face verts 3 flags 0 mat 0
<106,106> <107,107> <120,120>
Face verts 3 flags 0 mat 0
<120,120> <107,107> <121,121>
Face verts 3 flags 0 mat 0
<107,107> <122,122> <121,121>
Face verts 3 flags 0 mat 0
<107,107> <108,108> <122,122>
Face verts 3 flags 0 mat 0
<108,108> <123,123> <122,122>
Face verts 3 flags 0 mat 0
<108,108> <109,109> <123,123>
Face verts 3 flags 0 mat 0
<109,109> <124,124> <123,123>
Face verts 3 flags 0 mat 0
<109,109> <110,110> <124,124>
Face verts 3 flags 0 mat 0
<110,110> <111,111> <124,124>
Face verts 3 flags 0 mat 0
<124,124> <111,111> <125,125>
Face verts 3 flags 0 mat 0
<111,111> <112,112> <125,125>
Face verts 3 flags 0 mat 0
<125,125> <112,112> <126,126>
Face verts 3 flags 0 mat 0
<112,112> <113,113> <126,126>
Face verts 3 flags 0 mat 0
<126,126> <113,113> <127,127>
Face verts 3 flags 0 mat 0
<113,113> <114,114> <127,127>
Face verts 3 flags 0 mat 0
<127,127> <114,114> <128,128>
Face verts 3 flags 0 mat 0
<117,117> <118,118> <129,129>
Face verts 3 flags 0 mat 0
<129,129> <118,118> <130,130>
Face verts 3 flags 0 mat 0
<118,118> <119,119> <130,130>
Face verts 3 flags 0 mat 0
<130,130> <119,119> <131,131>
Face verts 3 flags 0 mat 0
<119,119> <120,120> <131,131>
Face verts 3 flags 0 mat 0
<131,131> <120,120> <132,132>
Face verts 3 flags 0 mat 0
<120,120> <121,121> <132,132>
Face verts 3 flags 0 mat 0
<132,132> <121,121> <133,133>
Face verts 3 flags 0 mat 0
<121,121> <122,122> <133,133>
Face verts 3 flags 0 mat 0
<133,133> <122,122> <134,134>
Face verts 3 flags 0 mat 0
<122,122> <135,135> <134,134>
Face verts 3 flags 0 mat 0
<122,122> <123,123> <135,135>
Face verts 3 flags 0 mat 0
<123,123> <136,136> <135,135>
Face verts 3 flags 0 mat 0
<123,123> <124,124> <136,136>
Face verts 3 flags 0 mat 0
<124,124> <125,125> <136,136>
Face verts 3 flags 0 mat 0
<136,136> <125,125> <137,137>
Face verts 3 flags 0 mat 0
<125,125> <126,126> <137,137>
Face verts 3 flags 0 mat 0
<137,137> <126,126> <138,138>
Face verts 3 flags 0 mat 0
<126,126> <127,127> <138,138>
Face verts 3 flags 0 mat 0
<138,138> <127,127> <139,139>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\isle-00.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "plastic"
