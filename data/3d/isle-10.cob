# isle-10: made by art/build.sh, do not edit
Name isle-10
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 145
-8.64 -0.96 -0.2629
-7.68 -0.96 -0.1938
-7.68 0 0.0523
-8.64 0 0.0101
-7.68 0.96 0.191
-8.64 0.96 0.1502
-7.68 1.92 0.3226
-8.64 1.92 0.2293
-7.68 2.88 0.4213
-8.64 2.88 0.3438
-7.68 3.84 0.3706
-8.64 3.84 0.4975
-7.68 4.8 0.2361
-8.64 4.8 0.476
-7.68 5.76 0.08
-8.64 5.76 0.1758
-7.68 6.72 0.08
-8.64 6.72 0.08
-6.72 -0.96 -0.2068
-6.72 0 0.0599
-6.72 0.96 0.1658
-6.72 1.92 0.3134
-6.72 2.88 0.389
-6.72 3.84 0.3311
-6.72 4.8 0.1229
-6.72 5.76 0.08
-5.76 -0.96 -0.3206
-5.76 0 0.0225
-5.76 0.96 0.1276
-5.76 1.92 0.2335
-5.76 2.88 0.3685
-5.76 3.84 0.2275
-5.76 4.8 0.08
-4.8 -0.96 -0.5235
-4.8 0 -0.1087
-4.8 0.96 0.1087
-4.8 1.92 0.1617
-4.8 2.88 0.3415
-4.8 3.84 0.1437
-4.8 4.8 0.08
-3.84 -0.96 -0.7472
-3.84 0 -0.2875
-3.84 0.96 0.1123
-3.84 1.92 0.1838
-3.84 2.88 0.2177
-3.84 3.84 0.08
-2.88 -0.96 -0.7522
-2.88 0 0.0675
-2.88 0.96 0.22
-2.88 1.92 0.22
-2.88 2.88 0.1597
-2.88 3.84 0.08
-1.92 -0.96 -0.4043
-1.92 0 0.22
-1.92 0.96 0.22
-1.92 1.92 0.22
-1.92 2.88 0.1415
-1.92 3.84 0.08
-0.96 -0.96 -0.2578
-0.96 0 0.22
-0.96 0.96 0.22
-0.96 1.92 0.22
-0.96 2.88 0.1304
-0.96 3.84 0.08
0 -0.96 -0.2703
0 0 0.1993
0 0.96 0.22
0 1.92 0.22
0 2.88 0.1267
0 3.84 0.08
0 -1.92 -0.7263
0.96 -1.92 -0.4608
0.96 -0.96 -0.1027
0.96 0 0.132
0.96 0.96 0.1988
0.96 1.92 0.2304
0.96 2.88 0.1496
0.96 3.84 0.08
1.92 -1.92 -0.2499
1.92 -0.96 0.0312
1.92 0 0.147
1.92 0.96 0.2316
1.92 1.92 0.3131
1.92 2.88 0.203
1.92 3.84 0.08
2.88 -1.92 -0.1441
2.88 -0.96 0.0743
2.88 0 0.1481
2.88 0.96 0.1619
2.88 1.92 0.3028
2.88 2.88 0.2414
2.88 3.84 0.08
3.84 -1.92 -0.1218
3.84 -0.96 0.0793
3.84 0 0.129
3.84 0.96 0.188
3.84 1.92 0.348
3.84 2.88 0.289
3.84 3.84 0.08
4.8 -1.92 -0.1542
4.8 -0.96 0.0635
4.8 0 0.1437
4.8 0.96 0.3387
4.8 1.92 0.7908
4.8 2.88 0.4683
4.8 3.84 0.1465
5.76 -1.92 -0.2171
5.76 -0.96 0.0349
5.76 0 0.1586
5.76 0.96 0.6566
5.76 1.92 1.4212
5.76 2.88 0.6707
5.76 3.84 0.2313
5.76 4.8 0.08
4.8 4.8 0.08
6.72 -1.92 -0.2922
6.72 -0.96 0.0029
6.72 0 0.1722
6.72 0.96 1.0087
6.72 1.92 1.5038
6.72 2.88 0.8868
6.72 3.84 0.3562
6.72 4.8 0.1246
7.68 -1.92 -0.3675
7.68 -0.96 -0.0276
7.68 0 0.1468
7.68 0.96 1.1407
7.68 1.92 1.57
7.68 2.88 1.0983
7.68 3.84 0.4439
7.68 4.8 0.2467
7.68 5.76 0.08
6.72 5.76 0.08
8.64 -1.92 -0.4373
8.64 -0.96 -0.0878
8.64 0 0.1227
8.64 0.96 1.1215
8.64 1.92 1.5775
8.64 2.88 1.1354
8.64 3.84 0.581
8.64 4.8 0.3738
8.64 5.76 0.1863
8.64 6.72 0.08
7.68 6.72 0.08
0 0 15.5433
Texture Vertices 144
0 0.4444
0.0556 0.4444
0 0.5
0.0556 0.5
0 0.5556
0.0556 0.5556
0 0.6111
0.0556 0.6111
0 0.6667
0.0556 0.6667
0.0556 0.7222
0 0.7222
0 0.7778
0.0556 0.7778
0 0.8333
0.0556 0.8333
0 0.8889
0.0556 0.8889
0.1111 0.4444
0.1111 0.5
0.1111 0.5556
0.1111 0.6111
0.1111 0.6667
0.1111 0.7222
0.1111 0.7778
0.1111 0.8333
0.1667 0.4444
0.1667 0.5
0.1667 0.5556
0.1667 0.6111
0.1667 0.6667
0.1667 0.7222
0.1667 0.7778
0.2222 0.4444
0.2222 0.5
0.2222 0.5556
0.2222 0.6111
0.2222 0.6667
0.2222 0.7222
0.2222 0.7778
0.2778 0.4444
0.2778 0.5
0.2778 0.5556
0.2778 0.6111
0.2778 0.6667
0.2778 0.7222
0.3333 0.4444
0.3333 0.5
0.3333 0.5556
0.3333 0.6111
0.3333 0.6667
0.3333 0.7222
0.3889 0.4444
0.3889 0.5
0.3889 0.5556
0.3889 0.6111
0.3889 0.6667
0.3889 0.7222
0.4444 0.4444
0.4444 0.5
0.4444 0.5556
0.4444 0.6111
0.4444 0.6667
0.4444 0.7222
0.5 0.4444
0.5 0.5
0.5 0.5556
0.5 0.6111
0.5 0.6667
0.5 0.7222
0.5 0.3889
0.5556 0.3889
0.5556 0.4444
0.5556 0.5
0.5556 0.5556
0.5556 0.6111
0.5556 0.6667
0.5556 0.7222
0.6111 0.3889
0.6111 0.4444
0.6111 0.5
0.6111 0.5556
0.6111 0.6111
0.6111 0.6667
0.6111 0.7222
0.6667 0.3889
0.6667 0.4444
0.6667 0.5
0.6667 0.5556
0.6667 0.6111
0.6667 0.6667
0.6667 0.7222
0.7222 0.3889
0.7222 0.4444
0.7222 0.5
0.7222 0.5556
0.7222 0.6111
0.7222 0.6667
0.7222 0.7222
0.7778 0.3889
0.7778 0.4444
0.7778 0.5
0.7778 0.5556
0.7778 0.6111
0.7778 0.6667
0.7778 0.7222
0.8333 0.3889
0.8333 0.4444
0.8333 0.5
0.8333 0.5556
0.8333 0.6111
0.8333 0.6667
0.8333 0.7222
0.8333 0.7778
0.7778 0.7778
0.8889 0.3889
0.8889 0.4444
0.8889 0.5
0.8889 0.5556
0.8889 0.6111
0.8889 0.6667
0.8889 0.7222
0.8889 0.7778
0.9444 0.3889
0.9444 0.4444
0.9444 0.5
0.9444 0.5556
0.9444 0.6111
0.9444 0.6667
0.9444 0.7222
0.9444 0.7778
0.9444 0.8333
0.8889 0.8333
1 0.3889
1 0.4444
1 0.5
1 0.5556
1 0.6111
1 0.6667
1 0.7222
1 0.7778
1 0.8333
1 0.8889
0.9444 0.8889
Faces 226
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
<7,6> <9,8> <6,7>
Face verts 3 flags 0 mat 0
<6,7> <9,8> <8,9>
Face verts 3 flags 0 mat 0
<9,8> <10,10> <8,9>
Face verts 3 flags 0 mat 0
<9,8> <11,11> <10,10>
Face verts 3 flags 0 mat 0
<11,11> <13,12> <10,10>
Face verts 3 flags 0 mat 0
<10,10> <13,12> <12,13>
Face verts 3 flags 0 mat 0
<13,12> <15,14> <12,13>
Face verts 3 flags 0 mat 0
<12,13> <15,14> <14,15>
Face verts 3 flags 0 mat 0
<15,14> <17,16> <14,15>
Face verts 3 flags 0 mat 0
<14,15> <17,16> <16,17>
Face verts 3 flags 0 mat 0
<1,1> <19,19> <18,18>
Face verts 3 flags 0 mat 0
<1,1> <2,3> <19,19>
Face verts 3 flags 0 mat 0
<2,3> <20,20> <19,19>
Face verts 3 flags 0 mat 0
<2,3> <4,5> <20,20>
Face verts 3 flags 0 mat 0
<4,5> <21,21> <20,20>
Face verts 3 flags 0 mat 0
<4,5> <6,7> <21,21>
Face verts 3 flags 0 mat 0
<6,7> <22,22> <21,21>
Face verts 3 flags 0 mat 0
<6,7> <8,9> <22,22>
Face verts 3 flags 0 mat 0
<8,9> <10,10> <22,22>
Face verts 3 flags 0 mat 0
<22,22> <10,10> <23,23>
Face verts 3 flags 0 mat 0
<10,10> <12,13> <23,23>
Face verts 3 flags 0 mat 0
<23,23> <12,13> <24,24>
Face verts 3 flags 0 mat 0
<12,13> <14,15> <24,24>
Face verts 3 flags 0 mat 0
<24,24> <14,15> <25,25>
Face verts 3 flags 0 mat 0
<18,18> <27,27> <26,26>
Face verts 3 flags 0 mat 0
<18,18> <19,19> <27,27>
Face verts 3 flags 0 mat 0
<19,19> <28,28> <27,27>
Face verts 3 flags 0 mat 0
<19,19> <20,20> <28,28>
Face verts 3 flags 0 mat 0
<20,20> <29,29> <28,28>
Face verts 3 flags 0 mat 0
<20,20> <21,21> <29,29>
Face verts 3 flags 0 mat 0
<21,21> <30,30> <29,29>
Face verts 3 flags 0 mat 0
<21,21> <22,22> <30,30>
Face verts 3 flags 0 mat 0
<22,22> <23,23> <30,30>
Face verts 3 flags 0 mat 0
<30,30> <23,23> <31,31>
Face verts 3 flags 0 mat 0
<23,23> <24,24> <31,31>
Face verts 3 flags 0 mat 0
<31,31> <24,24> <32,32>
Face verts 3 flags 0 mat 0
<26,26> <34,34> <33,33>
Face verts 3 flags 0 mat 0
<26,26> <27,27> <34,34>
Face verts 3 flags 0 mat 0
<27,27> <35,35> <34,34>
Face verts 3 flags 0 mat 0
<27,27> <28,28> <35,35>
Face verts 3 flags 0 mat 0
<28,28> <36,36> <35,35>
Face verts 3 flags 0 mat 0
<28,28> <29,29> <36,36>
Face verts 3 flags 0 mat 0
<29,29> <37,37> <36,36>
Face verts 3 flags 0 mat 0
<29,29> <30,30> <37,37>
Face verts 3 flags 0 mat 0
<30,30> <31,31> <37,37>
Face verts 3 flags 0 mat 0
<37,37> <31,31> <38,38>
Face verts 3 flags 0 mat 0
<31,31> <32,32> <38,38>
Face verts 3 flags 0 mat 0
<38,38> <32,32> <39,39>
Face verts 3 flags 0 mat 0
<33,33> <41,41> <40,40>
Face verts 3 flags 0 mat 0
<33,33> <34,34> <41,41>
Face verts 3 flags 0 mat 0
<34,34> <42,42> <41,41>
Face verts 3 flags 0 mat 0
<34,34> <35,35> <42,42>
Face verts 3 flags 0 mat 0
<35,35> <36,36> <42,42>
Face verts 3 flags 0 mat 0
<42,42> <36,36> <43,43>
Face verts 3 flags 0 mat 0
<36,36> <44,44> <43,43>
Face verts 3 flags 0 mat 0
<36,36> <37,37> <44,44>
Face verts 3 flags 0 mat 0
<37,37> <38,38> <44,44>
Face verts 3 flags 0 mat 0
<44,44> <38,38> <45,45>
Face verts 3 flags 0 mat 0
<40,40> <41,41> <46,46>
Face verts 3 flags 0 mat 0
<46,46> <41,41> <47,47>
Face verts 3 flags 0 mat 0
<41,41> <42,42> <47,47>
Face verts 3 flags 0 mat 0
<47,47> <42,42> <48,48>
Face verts 3 flags 0 mat 0
<42,42> <43,43> <48,48>
Face verts 3 flags 0 mat 0
<48,48> <43,43> <49,49>
Face verts 3 flags 0 mat 0
<43,43> <44,44> <49,49>
Face verts 3 flags 0 mat 0
<49,49> <44,44> <50,50>
Face verts 3 flags 0 mat 0
<44,44> <45,45> <50,50>
Face verts 3 flags 0 mat 0
<50,50> <45,45> <51,51>
Face verts 3 flags 0 mat 0
<46,46> <47,47> <52,52>
Face verts 3 flags 0 mat 0
<52,52> <47,47> <53,53>
Face verts 3 flags 0 mat 0
<47,47> <48,48> <53,53>
Face verts 3 flags 0 mat 0
<53,53> <48,48> <54,54>
Face verts 3 flags 0 mat 0
<48,48> <49,49> <54,54>
Face verts 3 flags 0 mat 0
<54,54> <49,49> <55,55>
Face verts 3 flags 0 mat 0
<49,49> <50,50> <55,55>
Face verts 3 flags 0 mat 0
<55,55> <50,50> <56,56>
Face verts 3 flags 0 mat 0
<50,50> <51,51> <56,56>
Face verts 3 flags 0 mat 0
<56,56> <51,51> <57,57>
Face verts 3 flags 0 mat 0
<52,52> <53,53> <58,58>
Face verts 3 flags 0 mat 0
<58,58> <53,53> <59,59>
Face verts 3 flags 0 mat 0
<53,53> <54,54> <59,59>
Face verts 3 flags 0 mat 0
<59,59> <54,54> <60,60>
Face verts 3 flags 0 mat 0
<54,54> <55,55> <60,60>
Face verts 3 flags 0 mat 0
<60,60> <55,55> <61,61>
Face verts 3 flags 0 mat 0
<55,55> <56,56> <61,61>
Face verts 3 flags 0 mat 0
<61,61> <56,56> <62,62>
Face verts 3 flags 0 mat 0
<56,56> <57,57> <62,62>
Face verts 3 flags 0 mat 0
<62,62> <57,57> <63,63>
Face verts 3 flags 0 mat 0
<58,58> <65,65> <64,64>
Face verts 3 flags 0 mat 0
<58,58> <59,59> <65,65>
Face verts 3 flags 0 mat 0
<59,59> <66,66> <65,65>
Face verts 3 flags 0 mat 0
<59,59> <60,60> <66,66>
Face verts 3 flags 0 mat 0
<60,60> <61,61> <66,66>
Face verts 3 flags 0 mat 0
<66,66> <61,61> <67,67>
Face verts 3 flags 0 mat 0
<61,61> <62,62> <67,67>
Face verts 3 flags 0 mat 0
<67,67> <62,62> <68,68>
Face verts 3 flags 0 mat 0
<62,62> <63,63> <68,68>
Face verts 3 flags 0 mat 0
<68,68> <63,63> <69,69>
Face verts 3 flags 0 mat 0
<70,70> <64,64> <71,71>
Face verts 3 flags 0 mat 0
<71,71> <64,64> <72,72>
Face verts 3 flags 0 mat 0
<64,64> <65,65> <72,72>
Face verts 3 flags 0 mat 0
<72,72> <65,65> <73,73>
Face verts 3 flags 0 mat 0
<65,65> <74,74> <73,73>
Face verts 3 flags 0 mat 0
<65,65> <66,66> <74,74>
Face verts 3 flags 0 mat 0
<66,66> <75,75> <74,74>
Face verts 3 flags 0 mat 0
<66,66> <67,67> <75,75>
Face verts 3 flags 0 mat 0
<67,67> <76,76> <75,75>
Face verts 3 flags 0 mat 0
<67,67> <68,68> <76,76>
Face verts 3 flags 0 mat 0
<68,68> <77,77> <76,76>
Face verts 3 flags 0 mat 0
<68,68> <69,69> <77,77>
Face verts 3 flags 0 mat 0
<71,71> <72,72> <78,78>
Face verts 3 flags 0 mat 0
<78,78> <72,72> <79,79>
Face verts 3 flags 0 mat 0
<72,72> <73,73> <79,79>
Face verts 3 flags 0 mat 0
<79,79> <73,73> <80,80>
Face verts 3 flags 0 mat 0
<73,73> <74,74> <80,80>
Face verts 3 flags 0 mat 0
<80,80> <74,74> <81,81>
Face verts 3 flags 0 mat 0
<74,74> <75,75> <81,81>
Face verts 3 flags 0 mat 0
<81,81> <75,75> <82,82>
Face verts 3 flags 0 mat 0
<75,75> <83,83> <82,82>
Face verts 3 flags 0 mat 0
<75,75> <76,76> <83,83>
Face verts 3 flags 0 mat 0
<76,76> <84,84> <83,83>
Face verts 3 flags 0 mat 0
<76,76> <77,77> <84,84>
Face verts 3 flags 0 mat 0
<78,78> <79,79> <85,85>
Face verts 3 flags 0 mat 0
<85,85> <79,79> <86,86>
Face verts 3 flags 0 mat 0
<79,79> <80,80> <86,86>
Face verts 3 flags 0 mat 0
<86,86> <80,80> <87,87>
Face verts 3 flags 0 mat 0
<80,80> <88,88> <87,87>
Face verts 3 flags 0 mat 0
<80,80> <81,81> <88,88>
Face verts 3 flags 0 mat 0
<81,81> <89,89> <88,88>
Face verts 3 flags 0 mat 0
<81,81> <82,82> <89,89>
Face verts 3 flags 0 mat 0
<82,82> <90,90> <89,89>
Face verts 3 flags 0 mat 0
<82,82> <83,83> <90,90>
Face verts 3 flags 0 mat 0
<83,83> <91,91> <90,90>
Face verts 3 flags 0 mat 0
<83,83> <84,84> <91,91>
Face verts 3 flags 0 mat 0
<85,85> <86,86> <92,92>
Face verts 3 flags 0 mat 0
<92,92> <86,86> <93,93>
Face verts 3 flags 0 mat 0
<86,86> <94,94> <93,93>
Face verts 3 flags 0 mat 0
<86,86> <87,87> <94,94>
Face verts 3 flags 0 mat 0
<87,87> <88,88> <94,94>
Face verts 3 flags 0 mat 0
<94,94> <88,88> <95,95>
Face verts 3 flags 0 mat 0
<88,88> <89,89> <95,95>
Face verts 3 flags 0 mat 0
<95,95> <89,89> <96,96>
Face verts 3 flags 0 mat 0
<89,89> <97,97> <96,96>
Face verts 3 flags 0 mat 0
<89,89> <90,90> <97,97>
Face verts 3 flags 0 mat 0
<90,90> <98,98> <97,97>
Face verts 3 flags 0 mat 0
<90,90> <91,91> <98,98>
Face verts 3 flags 0 mat 0
<92,92> <100,100> <99,99>
Face verts 3 flags 0 mat 0
<92,92> <93,93> <100,100>
Face verts 3 flags 0 mat 0
<93,93> <101,101> <100,100>
Face verts 3 flags 0 mat 0
<93,93> <94,94> <101,101>
Face verts 3 flags 0 mat 0
<94,94> <95,95> <101,101>
Face verts 3 flags 0 mat 0
<101,101> <95,95> <102,102>
Face verts 3 flags 0 mat 0
<95,95> <96,96> <102,102>
Face verts 3 flags 0 mat 0
<102,102> <96,96> <103,103>
Face verts 3 flags 0 mat 0
<96,96> <104,104> <103,103>
Face verts 3 flags 0 mat 0
<96,96> <97,97> <104,104>
Face verts 3 flags 0 mat 0
<97,97> <105,105> <104,104>
Face verts 3 flags 0 mat 0
<97,97> <98,98> <105,105>
Face verts 3 flags 0 mat 0
<99,99> <107,107> <106,106>
Face verts 3 flags 0 mat 0
<99,99> <100,100> <107,107>
Face verts 3 flags 0 mat 0
<100,100> <108,108> <107,107>
Face verts 3 flags 0 mat 0
<100,100> <101,101> <108,108>
Face verts 3 flags 0 mat 0
<101,101> <102,102> <108,108>
Face verts 3 flags 0 mat 0
<108,108> <102,102> <109,109>
Face verts 3 flags 0 mat 0
<102,102> <103,103> <109,109>
Face verts 3 flags 0 mat 0
<109,109> <103,103> <110,110>
Face verts 3 flags 0 mat 0
<103,103> <111,111> <110,110>
Face verts 3 flags 0 mat 0
<103,103> <104,104> <111,111>
Face verts 3 flags 0 mat 0
<104,104> <112,112> <111,111>
Face verts 3 flags 0 mat 0
<104,104> <105,105> <112,112>
Face verts 3 flags 0 mat 0
<105,105> <113,113> <112,112>
Face verts 3 flags 0 mat 0
<105,105> <114,114> <113,113>
Face verts 3 flags 0 mat 0
<106,106> <116,116> <115,115>
Face verts 3 flags 0 mat 0
<106,106> <107,107> <116,116>
Face verts 3 flags 0 mat 0
<107,107> <117,117> <116,116>
Face verts 3 flags 0 mat 0
<107,107> <108,108> <117,117>
Face verts 3 flags 0 mat 0
<108,108> <109,109> <117,117>
Face verts 3 flags 0 mat 0
<117,117> <109,109> <118,118>
Face verts 3 flags 0 mat 0
<109,109> <110,110> <118,118>
Face verts 3 flags 0 mat 0
<118,118> <110,110> <119,119>
Face verts 3 flags 0 mat 0
<110,110> <120,120> <119,119>
Face verts 3 flags 0 mat 0
<110,110> <111,111> <120,120>
Face verts 3 flags 0 mat 0
<111,111> <121,121> <120,120>
Face verts 3 flags 0 mat 0
<111,111> <112,112> <121,121>
Face verts 3 flags 0 mat 0
<112,112> <122,122> <121,121>
Face verts 3 flags 0 mat 0
<112,112> <113,113> <122,122>
Face verts 3 flags 0 mat 0
<115,115> <124,124> <123,123>
Face verts 3 flags 0 mat 0
<115,115> <116,116> <124,124>
Face verts 3 flags 0 mat 0
<116,116> <125,125> <124,124>
Face verts 3 flags 0 mat 0
<116,116> <117,117> <125,125>
Face verts 3 flags 0 mat 0
<117,117> <118,118> <125,125>
Face verts 3 flags 0 mat 0
<125,125> <118,118> <126,126>
Face verts 3 flags 0 mat 0
<118,118> <119,119> <126,126>
Face verts 3 flags 0 mat 0
<126,126> <119,119> <127,127>
Face verts 3 flags 0 mat 0
<119,119> <128,128> <127,127>
Face verts 3 flags 0 mat 0
<119,119> <120,120> <128,128>
Face verts 3 flags 0 mat 0
<120,120> <129,129> <128,128>
Face verts 3 flags 0 mat 0
<120,120> <121,121> <129,129>
Face verts 3 flags 0 mat 0
<121,121> <130,130> <129,129>
Face verts 3 flags 0 mat 0
<121,121> <122,122> <130,130>
Face verts 3 flags 0 mat 0
<122,122> <131,131> <130,130>
Face verts 3 flags 0 mat 0
<122,122> <132,132> <131,131>
Face verts 3 flags 0 mat 0
<123,123> <134,134> <133,133>
Face verts 3 flags 0 mat 0
<123,123> <124,124> <134,134>
Face verts 3 flags 0 mat 0
<124,124> <135,135> <134,134>
Face verts 3 flags 0 mat 0
<124,124> <125,125> <135,135>
Face verts 3 flags 0 mat 0
<125,125> <136,136> <135,135>
Face verts 3 flags 0 mat 0
<125,125> <126,126> <136,136>
Face verts 3 flags 0 mat 0
<126,126> <137,137> <136,136>
Face verts 3 flags 0 mat 0
<126,126> <127,127> <137,137>
Face verts 3 flags 0 mat 0
<127,127> <138,138> <137,137>
Face verts 3 flags 0 mat 0
<127,127> <128,128> <138,138>
Face verts 3 flags 0 mat 0
<128,128> <139,139> <138,138>
Face verts 3 flags 0 mat 0
<128,128> <129,129> <139,139>
Face verts 3 flags 0 mat 0
<129,129> <140,140> <139,139>
Face verts 3 flags 0 mat 0
<129,129> <130,130> <140,140>
Face verts 3 flags 0 mat 0
<130,130> <141,141> <140,140>
Face verts 3 flags 0 mat 0
<130,130> <131,131> <141,141>
Face verts 3 flags 0 mat 0
<131,131> <142,142> <141,141>
Face verts 3 flags 0 mat 0
<131,131> <143,143> <142,142>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\isle-10.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "plastic"
