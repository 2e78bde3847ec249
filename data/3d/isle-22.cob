# isle-22: made by art/build.sh, do not edit
Name isle-22
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 137
-8.64 -6.72 0.08
-7.68 -6.72 0.1524
-7.68 -5.76 0.3538
-8.64 -5.76 0.1867
-7.68 -4.8 0.3892
-8.64 -4.8 0.3703
-7.68 -3.84 0.3398
-8.64 -3.84 0.3302
-7.68 -2.88 0.3285
-8.64 -2.88 0.2589
-7.68 -1.92 0.2572
-8.64 -1.92 0.3482
-7.68 -0.96 0.1974
-8.64 -0.96 0.2406
-7.68 0 0.0831
-8.64 0 0.1571
-7.68 0.96 -0.1698
-8.64 0.96 -0.0887
-7.68 1.92 -0.5121
-8.64 1.92 -0.4149
-7.68 -7.68 0.08
-6.72 -7.68 0.1524
-6.72 -6.72 0.3391
-6.72 -5.76 0.4106
-6.72 -4.8 0.474
-6.72 -3.84 0.4337
-6.72 -2.88 0.3793
-6.72 -1.92 0.3066
-6.72 -0.96 0.2005
-6.72 0 0.0625
-6.72 0.96 -0.21
-6.72 -8.64 0.08
-5.76 -8.64 0.1867
-5.76 -7.68 0.3512
-5.76 -6.72 0.462
-5.76 -5.76 0.4414
-5.76 -4.8 0.4535
-5.76 -3.84 0.4825
-5.76 -2.88 0.4097
-5.76 -1.92 0.3007
-5.76 -0.96 0.1766
-5.76 0 0.0666
-5.76 0.96 -0.2195
-4.8 -8.64 0.3977
-4.8 -7.68 0.4803
-4.8 -6.72 0.5147
-4.8 -5.76 0.5631
-4.8 -4.8 0.5749
-4.8 -3.84 0.5746
-4.8 -2.88 0.5427
-4.8 -1.92 0.4246
-4.8 -0.96 0.1759
-4.8 0 0.0745
-4.8 0.96 -0.213
-3.84 -8.64 0.3908
-3.84 -7.68 0.4638
-3.84 -6.72 0.5477
-3.84 -5.76 0.58
-3.84 -4.8 0.58
-3.84 -3.84 0.58
-3.84 -2.88 0.58
-3.84 -1.92 0.5435
-3.84 -0.96 0.2742
-3.84 0 0.0788
-3.84 0.96 -0.2065
-2.88 -8.64 0.3484
-2.88 -7.68 0.4984
-2.88 -6.72 0.5776
-2.88 -5.76 0.58
-2.88 -4.8 0.58
-2.88 -3.84 0.58
-2.88 -2.88 0.58
-2.88 -1.92 0.5792
-2.88 -0.96 0.3686
-2.88 0 0.0698
-2.88 0.96 -0.2155
-1.92 -8.64 0.6074
-1.92 -7.68 0.4752
-1.92 -6.72 0.5785
-1.92 -5.76 0.58
-1.92 -4.8 0.58
-1.92 -3.84 0.58
-1.92 -2.88 0.58
-1.92 -1.92 0.58
-1.92 -0.96 0.3653
-1.92 0 0.0461
-1.92 0.96 -0.2528
-0.96 -8.64 0.7755
-0.96 -7.68 0.428
-0.96 -6.72 0.5587
-0.96 -5.76 0.58
-0.96 -4.8 0.58
-0.96 -3.84 0.58
-0.96 -2.88 0.58
-0.96 -1.92 0.5544
-0.96 -0.96 0.2882
-0.96 0 -0.0018
-0.96 0.96 -0.3277
0 -8.64 0.5139
0 -7.68 0.255
0 -6.72 0.451
0 -5.76 0.5621
0 -4.8 0.58
0 -3.84 0.58
0 -2.88 0.5545
0 -1.92 0.3972
0 -0.96 0.099
0 0 -0.121
0 0.96 -0.4454
0.96 -8.64 0.1118
0.96 -7.68 0.1148
0.96 -6.72 0.1604
0.96 -5.76 0.2979
0.96 -4.8 0.3881
0.96 -3.84 0.3816
0.96 -2.88 0.277
0.96 -1.92 0.0772
0.96 -0.96 -0.0871
0.96 0 -0.3248
1.92 -8.64 -0.1149
1.92 -7.68 -0.1129
1.92 -6.72 -0.0996
1.92 -5.76 -0.0822
1.92 -4.8 -0.0661
1.92 -3.84 -0.0789
1.92 -2.88 -0.1374
1.92 -1.92 -0.2323
1.92 -0.96 -0.3769
1.92 0 -0.5577
2.88 -8.64 -0.4831
2.88 -7.68 -0.4919
2.88 -6.72 -0.4916
2.88 -5.76 -0.4847
2.88 -4.8 -0.479
2.88 -3.84 -0.4849
2.88 -2.88 -0.5129
0 0 15.5433
Texture Vertices 136
0 0.1111
0.0556 0.1111
0 0.1667
0.0556 0.1667
0 0.2222
0.0556 0.2222
0.0556 0.2778
0 0.2778
0.0556 0.3333
0 0.3333
0.0556 0.3889
0 0.3889
0 0.4444
0.0556 0.4444
0 0.5
0.0556 0.5
0 0.5556
0.0556 0.5556
0 0.6111
0.0556 0.6111
0.0556 0.0556
0.1111 0.0556
0.1111 0.1111
0.1111 0.1667
0.1111 0.2222
0.1111 0.2778
0.1111 0.3333
0.1111 0.3889
0.1111 0.4444
0.1111 0.5
0.1111 0.5556
0.1111 0
0.1667 0
0.1667 0.0556
0.1667 0.1111
0.1667 0.1667
0.1667 0.2222
0.1667 0.2778
0.1667 0.3333
0.1667 0.3889
0.1667 0.4444
0.1667 0.5
0.1667 0.5556
0.2222 0
0.2222 0.0556
0.2222 0.1111
0.2222 0.1667
0.2222 0.2222
0.2222 0.2778
0.2222 0.3333
0.2222 0.3889
0.2222 0.4444
0.2222 0.5
0.2222 0.5556
0.2778 0
0.2778 0.0556
0.2778 0.1111
0.2778 0.1667
0.2778 0.2222
0.2778 0.2778
0.2778 0.3333
0.2778 0.3889
0.2778 0.4444
0.2778 0.5
0.2778 0.5556
0.3333 0
0.3333 0.0556
0.3333 0.1111
0.3333 0.1667
0.3333 0.2222
0.3333 0.2778
0.3333 0.3333
0.3333 0.3889
0.3333 0.4444
0.3333 0.5
0.3333 0.5556
0.3889 0
0.3889 0.0556
0.3889 0.1111
0.3889 0.1667
0.3889 0.2222
0.3889 0.2778
0.3889 0.3333
0.3889 0.3889
0.3889 0.4444
0.3889 0.5
0.3889 0.5556
0.4444 0
0.4444 0.0556
0.4444 0.1111
0.4444 0.1667
0.4444 0.2222
0.4444 0.2778
0.4444 0.3333
0.4444 0.3889
0.4444 0.4444
0.4444 0.5
0.4444 0.5556
0.5 0
0.5 0.0556
0.5 0.1111
0.5 0.1667
0.5 0.2222
0.5 0.2778
0.5 0.3333
0.5 0.3889
0.5 0.4444
0.5 0.5
0.5 0.5556
0.5556 0
0.5556 0.0556
0.5556 0.1111
0.5556 0.1667
0.5556 0.2222
0.5556 0.2778
0.5556 0.3333
0.5556 0.3889
0.5556 0.4444
0.5556 0.5
0.6111 0
0.6111 0.0556
0.6111 0.1111
0.6111 0.1667
0.6111 0.2222
0.6111 0.2778
0.6111 0.3333
0.6111 0.3889
0.6111 0.4444
0.6111 0.5
0.6667 0
0.6667 0.0556
0.6667 0.1111
0.6667 0.1667
0.6667 0.2222
0.6667 0.2778
0.6667 0.3333
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
<5,4> <6,6> <4,5>
Face verts 3 flags 0 mat 0
<5,4> <7,7> <6,6>
Face verts 3 flags 0 mat 0
<7,7> <8,8> <6,6>
Face verts 3 flags 0 mat 0
<7,7> <9,9> <8,8>
Face verts 3 flags 0 mat 0
<9,9> <10,10> <8,8>
Face verts 3 flags 0 mat 0
<9,9> <11,11> <10,10>
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
<17,16> <19,18> <16,17>
Face verts 3 flags 0 mat 0
<16,17> <19,18> <18,19>
Face verts 3 flags 0 mat 0
<20,20> <1,1> <21,21>
Face verts 3 flags 0 mat 0
<21,21> <1,1> <22,22>
Face verts 3 flags 0 mat 0
<1,1> <2,3> <22,22>
Face verts 3 flags 0 mat 0
<22,22> <2,3> <23,23>
Face verts 3 flags 0 mat 0
<2,3> <4,5> <23,23>
Face verts 3 flags 0 mat 0
<23,23> <4,5> <24,24>
Face verts 3 flags 0 mat 0
<4,5> <25,25> <24,24>
Face verts 3 flags 0 mat 0
<4,5> <6,6> <25,25>
Face verts 3 flags 0 mat 0
<6,6> <26,26> <25,25>
Face verts 3 flags 0 mat 0
<6,6> <8,8> <26,26>
Face verts 3 flags 0 mat 0
<8,8> <27,27> <26,26>
Face verts 3 flags 0 mat 0
<8,8> <10,10> <27,27>
Face verts 3 flags 0 mat 0
<10,10> <28,28> <27,27>
Face verts 3 flags 0 mat 0
<10,10> <12,13> <28,28>
Face verts 3 flags 0 mat 0
<12,13> <14,15> <28,28>
Face verts 3 flags 0 mat 0
<28,28> <14,15> <29,29>
Face verts 3 flags 0 mat 0
<14,15> <16,17> <29,29>
Face verts 3 flags 0 mat 0
<29,29> <16,17> <30,30>
Face verts 3 flags 0 mat 0
<31,31> <21,21> <32,32>
Face verts 3 flags 0 mat 0
<32,32> <21,21> <33,33>
Face verts 3 flags 0 mat 0
<21,21> <22,22> <33,33>
Face verts 3 flags 0 mat 0
<33,33> <22,22> <34,34>
Face verts 3 flags 0 mat 0
<22,22> <23,23> <34,34>
Face verts 3 flags 0 mat 0
<34,34> <23,23> <35,35>
Face verts 3 flags 0 mat 0
<23,23> <24,24> <35,35>
Face verts 3 flags 0 mat 0
<35,35> <24,24> <36,36>
Face verts 3 flags 0 mat 0
<24,24> <37,37> <36,36>
Face verts 3 flags 0 mat 0
<24,24> <25,25> <37,37>
Face verts 3 flags 0 mat 0
<25,25> <38,38> <37,37>
Face verts 3 flags 0 mat 0
<25,25> <26,26> <38,38>
Face verts 3 flags 0 mat 0
<26,26> <39,39> <38,38>
Face verts 3 flags 0 mat 0
<26,26> <27,27> <39,39>
Face verts 3 flags 0 mat 0
<27,27> <28,28> <39,39>
Face verts 3 flags 0 mat 0
<39,39> <28,28> <40,40>
Face verts 3 flags 0 mat 0
<28,28> <29,29> <40,40>
Face verts 3 flags 0 mat 0
<40,40> <29,29> <41,41>
Face verts 3 flags 0 mat 0
<29,29> <30,30> <41,41>
Face verts 3 flags 0 mat 0
<41,41> <30,30> <42,42>
Face verts 3 flags 0 mat 0
<32,32> <33,33> <43,43>
Face verts 3 flags 0 mat 0
<43,43> <33,33> <44,44>
Face verts 3 flags 0 mat 0
<33,33> <34,34> <44,44>
Face verts 3 flags 0 mat 0
<44,44> <34,34> <45,45>
Face verts 3 flags 0 mat 0
<34,34> <35,35> <45,45>
Face verts 3 flags 0 mat 0
<45,45> <35,35> <46,46>
Face verts 3 flags 0 mat 0
<35,35> <36,36> <46,46>
Face verts 3 flags 0 mat 0
<46,46> <36,36> <47,47>
Face verts 3 flags 0 mat 0
<36,36> <37,37> <47,47>
Face verts 3 flags 0 mat 0
<47,47> <37,37> <48,48>
Face verts 3 flags 0 mat 0
<37,37> <49,49> <48,48>
Face verts 3 flags 0 mat 0
<37,37> <38,38> <49,49>
Face verts 3 flags 0 mat 0
<38,38> <50,50> <49,49>
Face verts 3 flags 0 mat 0
<38,38> <39,39> <50,50>
Face verts 3 flags 0 mat 0
<39,39> <51,51> <50,50>
Face verts 3 flags 0 mat 0
<39,39> <40,40> <51,51>
Face verts 3 flags 0 mat 0
<40,40> <52,52> <51,51>
Face verts 3 flags 0 mat 0
<40,40> <41,41> <52,52>
Face verts 3 flags 0 mat 0
<41,41> <53,53> <52,52>
Face verts 3 flags 0 mat 0
<41,41> <42,42> <53,53>
Face verts 3 flags 0 mat 0
<43,43> <55,55> <54,54>
Face verts 3 flags 0 mat 0
<43,43> <44,44> <55,55>
Face verts 3 flags 0 mat 0
<44,44> <45,45> <55,55>
Face verts 3 flags 0 mat 0
<55,55> <45,45> <56,56>
Face verts 3 flags 0 mat 0
<45,45> <46,46> <56,56>
Face verts 3 flags 0 mat 0
<56,56> <46,46> <57,57>
Face verts 3 flags 0 mat 0
<46,46> <47,47> <57,57>
Face verts 3 flags 0 mat 0
<57,57> <47,47> <58,58>
Face verts 3 flags 0 mat 0
<47,47> <59,59> <58,58>
Face verts 3 flags 0 mat 0
<47,47> <48,48> <59,59>
Face verts 3 flags 0 mat 0
<48,48> <60,60> <59,59>
Face verts 3 flags 0 mat 0
<48,48> <49,49> <60,60>
Face verts 3 flags 0 mat 0
<49,49> <61,61> <60,60>
Face verts 3 flags 0 mat 0
<49,49> <50,50> <61,61>
Face verts 3 flags 0 mat 0
<50,50> <62,62> <61,61>
Face verts 3 flags 0 mat 0
<50,50> <51,51> <62,62>
Face verts 3 flags 0 mat 0
<51,51> <63,63> <62,62>
Face verts 3 flags 0 mat 0
<51,51> <52,52> <63,63>
Face verts 3 flags 0 mat 0
<52,52> <64,64> <63,63>
Face verts 3 flags 0 mat 0
<52,52> <53,53> <64,64>
Face verts 3 flags 0 mat 0
<54,54> <66,66> <65,65>
Face verts 3 flags 0 mat 0
<54,54> <55,55> <66,66>
Face verts 3 flags 0 mat 0
<55,55> <56,56> <66,66>
Face verts 3 flags 0 mat 0
<66,66> <56,56> <67,67>
Face verts 3 flags 0 mat 0
<56,56> <57,57> <67,67>
Face verts 3 flags 0 mat 0
<67,67> <57,57> <68,68>
Face verts 3 flags 0 mat 0
<57,57> <58,58> <68,68>
Face verts 3 flags 0 mat 0
<68,68> <58,58> <69,69>
Face verts 3 flags 0 mat 0
<58,58> <59,59> <69,69>
Face verts 3 flags 0 mat 0
<69,69> <59,59> <70,70>
Face verts 3 flags 0 mat 0
<59,59> <60,60> <70,70>
Face verts 3 flags 0 mat 0
<70,70> <60,60> <71,71>
Face verts 3 flags 0 mat 0
<60,60> <72,72> <71,71>
Face verts 3 flags 0 mat 0
<60,60> <61,61> <72,72>
Face verts 3 flags 0 mat 0
<61,61> <73,73> <72,72>
Face verts 3 flags 0 mat 0
<61,61> <62,62> <73,73>
Face verts 3 flags 0 mat 0
<62,62> <74,74> <73,73>
Face verts 3 flags 0 mat 0
<62,62> <63,63> <74,74>
Face verts 3 flags 0 mat 0
<63,63> <64,64> <74,74>
Face verts 3 flags 0 mat 0
<74,74> <64,64> <75,75>
Face verts 3 flags 0 mat 0
<65,65> <66,66> <76,76>
Face verts 3 flags 0 mat 0
<76,76> <66,66> <77,77>
Face verts 3 flags 0 mat 0
<66,66> <78,78> <77,77>
Face verts 3 flags 0 mat 0
<66,66> <67,67> <78,78>
Face verts 3 flags 0 mat 0
<67,67> <68,68> <78,78>
Face verts 3 flags 0 mat 0
<78,78> <68,68> <79,79>
Face verts 3 flags 0 mat 0
<68,68> <69,69> <79,79>
Face verts 3 flags 0 mat 0
<79,79> <69,69> <80,80>
Face verts 3 flags 0 mat 0
<69,69> <70,70> <80,80>
Face verts 3 flags 0 mat 0
<80,80> <70,70> <81,81>
Face verts 3 flags 0 mat 0
<70,70> <71,71> <81,81>
Face verts 3 flags 0 mat 0
<81,81> <71,71> <82,82>
Face verts 3 flags 0 mat 0
<71,71> <83,83> <82,82>
Face verts 3 flags 0 mat 0
<71,71> <72,72> <83,83>
Face verts 3 flags 0 mat 0
<72,72> <73,73> <83,83>
Face verts 3 flags 0 mat 0
<83,83> <73,73> <84,84>
Face verts 3 flags 0 mat 0
<73,73> <74,74> <84,84>
Face verts 3 flags 0 mat 0
<84,84> <74,74> <85,85>
Face verts 3 flags 0 mat 0
<74,74> <75,75> <85,85>
Face verts 3 flags 0 mat 0
<85,85> <75,75> <86,86>
Face verts 3 flags 0 mat 0
<76,76> <88,88> <87,87>
Face verts 3 flags 0 mat 0
<76,76> <77,77> <88,88>
Face verts 3 flags 0 mat 0
<77,77> <89,89> <88,88>
Face verts 3 flags 0 mat 0
<77,77> <78,78> <89,89>
Face verts 3 flags 0 mat 0
<78,78> <90,90> <89,89>
Face verts 3 flags 0 mat 0
<78,78> <79,79> <90,90>
Face verts 3 flags 0 mat 0
<79,79> <80,80> <90,90>
Face verts 3 flags 0 mat 0
<90,90> <80,80> <91,91>
Face verts 3 flags 0 mat 0
<80,80> <81,81> <91,91>
Face verts 3 flags 0 mat 0
<91,91> <81,81> <92,92>
Face verts 3 flags 0 mat 0
<81,81> <82,82> <92,92>
Face verts 3 flags 0 mat 0
<92,92> <82,82> <93,93>
Face verts 3 flags 0 mat 0
<82,82> <83,83> <93,93>
Face verts 3 flags 0 mat 0
<93,93> <83,83> <94,94>
Face verts 3 flags 0 mat 0
<83,83> <84,84> <94,94>
Face verts 3 flags 0 mat 0
<94,94> <84,84> <95,95>
Face verts 3 flags 0 mat 0
<84,84> <85,85> <95,95>
Face verts 3 flags 0 mat 0
<95,95> <85,85> <96,96>
Face verts 3 flags 0 mat 0
<85,85> <86,86> <96,96>
Face verts 3 flags 0 mat 0
<96,96> <86,86> <97,97>
Face verts 3 flags 0 mat 0
<87,87> <88,88> <98,98>
Face verts 3 flags 0 mat 0
<98,98> <88,88> <99,99>
Face verts 3 flags 0 mat 0
<88,88> <100,100> <99,99>
Face verts 3 flags 0 mat 0
<88,88> <89,89> <100,100>
Face verts 3 flags 0 mat 0
<89,89> <101,101> <100,100>
Face verts 3 flags 0 mat 0
<89,89> <90,90> <101,101>
Face verts 3 flags 0 mat 0
<90,90> <102,102> <101,101>
Face verts 3 flags 0 mat 0
<90,90> <91,91> <102,102>
Face verts 3 flags 0 mat 0
<91,91> <92,92> <102,102>
Face verts 3 flags 0 mat 0
<102,102> <92,92> <103,103>
Face verts 3 flags 0 mat 0
<92,92> <93,93> <103,103>
Face verts 3 flags 0 mat 0
<103,103> <93,93> <104,104>
Face verts 3 flags 0 mat 0
<93,93> <94,94> <104,104>
Face verts 3 flags 0 mat 0
<104,104> <94,94> <105,105>
Face verts 3 flags 0 mat 0
<94,94> <95,95> <105,105>
Face verts 3 flags 0 mat 0
<105,105> <95,95> <106,106>
Face verts 3 flags 0 mat 0
<95,95> <96,96> <106,106>
Face verts 3 flags 0 mat 0
<106,106> <96,96> <107,107>
Face verts 3 flags 0 mat 0
<96,96> <97,97> <107,107>
Face verts 3 flags 0 mat 0
<107,107> <97,97> <108,108>
Face verts 3 flags 0 mat 0
<98,98> <99,99> <109,109>
Face verts 3 flags 0 mat 0
<109,109> <99,99> <110,110>
Face verts 3 flags 0 mat 0
<99,99> <111,111> <110,110>
Face verts 3 flags 0 mat 0
<99,99> <100,100> <111,111>
Face verts 3 flags 0 mat 0
<100,100> <112,112> <111,111>
Face verts 3 flags 0 mat 0
<100,100> <101,101> <112,112>
Face verts 3 flags 0 mat 0
<101,101> <113,113> <112,112>
Face verts 3 flags 0 mat 0
<101,101> <102,102> <113,113>
Face verts 3 flags 0 mat 0
<102,102> <103,103> <113,113>
Face verts 3 flags 0 mat 0
<113,113> <103,103> <114,114>
Face verts 3 flags 0 mat 0
<103,103> <104,104> <114,114>
Face verts 3 flags 0 mat 0
<114,114> <104,104> <115,115>
Face verts 3 flags 0 mat 0
<104,104> <105,105> <115,115>
Face verts 3 flags 0 mat 0
<115,115> <105,105> <116,116>
Face verts 3 flags 0 mat 0
<105,105> <106,106> <116,116>
Face verts 3 flags 0 mat 0
<116,116> <106,106> <117,117>
Face verts 3 flags 0 mat 0
<106,106> <107,107> <117,117>
Face verts 3 flags 0 mat 0
<117,117> <107,107> <118,118>
Face verts 3 flags 0 mat 0
<109,109> <120,120> <119,119>
Face verts 3 flags 0 mat 0
<109,109> <110,110> <120,120>
Face verts 3 flags 0 mat 0
<110,110> <121,121> <120,120>
Face verts 3 flags 0 mat 0
<110,110> <111,111> <121,121>
Face verts 3 flags 0 mat 0
<111,111> <122,122> <121,121>
Face verts 3 flags 0 mat 0
<111,111> <112,112> <122,122>
Face verts 3 flags 0 mat 0
<112,112> <123,123> <122,122>
Face verts 3 flags 0 mat 0
<112,112> <113,113> <123,123>
Face verts 3 flags 0 mat 0
<113,113> <114,114> <123,123>
Face verts 3 flags 0 mat 0
<123,123> <114,114> <124,124>
Face verts 3 flags 0 mat 0
<114,114> <115,115> <124,124>
Face verts 3 flags 0 mat 0
<124,124> <115,115> <125,125>
Face verts 3 flags 0 mat 0
<115,115> <116,116> <125,125>
Face verts 3 flags 0 mat 0
<125,125> <116,116> <126,126>
Face verts 3 flags 0 mat 0
<116,116> <117,117> <126,126>
Face verts 3 flags 0 mat 0
<126,126> <117,117> <127,127>
Face verts 3 flags 0 mat 0
<117,117> <118,118> <127,127>
Face verts 3 flags 0 mat 0
<127,127> <118,118> <128,128>
Face verts 3 flags 0 mat 0
<119,119> <120,120> <129,129>
Face verts 3 flags 0 mat 0
<129,129> <120,120> <130,130>
Face verts 3 flags 0 mat 0
<120,120> <131,131> <130,130>
Face verts 3 flags 0 mat 0
<120,120> <121,121> <131,131>
Face verts 3 flags 0 mat 0
<121,121> <132,132> <131,131>
Face verts 3 flags 0 mat 0
<121,121> <122,122> <132,132>
Face verts 3 flags 0 mat 0
<122,122> <133,133> <132,132>
Face verts 3 flags 0 mat 0
<122,122> <123,123> <133,133>
Face verts 3 flags 0 mat 0
<123,123> <124,124> <133,133>
Face verts 3 flags 0 mat 0
<133,133> <124,124> <134,134>
Face verts 3 flags 0 mat 0
<124,124> <125,125> <134,134>
Face verts 3 flags 0 mat 0
<134,134> <125,125> <135,135>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\isle-22.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "plastic"
