# isle-20: made by art/build.sh, do not edit
Name isle-20
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 166
-8.64 -1.44 -0.2631
-7.92 -1.44 -0.3099
-7.92 -0.72 -0.0433
-8.64 -0.72 -0.0169
-7.92 0 0.1007
-8.64 0 0.1227
-7.92 0.72 0.6536
-8.64 0.72 0.7388
-7.92 1.44 1.5739
-8.64 1.44 1.5571
-7.92 2.16 1.5425
-8.64 2.16 1.4635
-7.92 2.88 1.1564
-8.64 2.88 1.1354
-7.92 3.6 0.7022
-8.64 3.6 0.739
-7.92 4.32 0.4406
-8.64 4.32 0.4052
-7.92 5.04 0.3783
-8.64 5.04 0.3269
-7.92 5.76 0.2977
-8.64 5.76 0.1863
-7.92 6.48 0.1578
-8.64 6.48 0.08
-7.2 -1.44 -0.3568
-7.2 -0.72 -0.0886
-7.2 0 0.0828
-7.2 0.72 0.5994
-7.2 1.44 1.5245
-7.2 2.16 1.4622
-7.2 2.88 1.1347
-7.2 3.6 0.7601
-7.2 4.32 0.4319
-7.2 5.04 0.3794
-7.2 5.76 0.3586
-7.2 6.48 0.281
-7.2 7.2 0.1481
-7.92 7.2 0.08
-6.48 -1.44 -0.4072
-6.48 -0.72 -0.1399
-6.48 0 0.0544
-6.48 0.72 0.5295
-6.48 1.44 1.3643
-6.48 2.16 1.1771
-6.48 2.88 0.9424
-6.48 3.6 0.6727
-6.48 4.32 0.4658
-6.48 5.04 0.4051
-6.48 5.76 0.3556
-6.48 6.48 0.3648
-6.48 7.2 0.2802
-6.48 7.92 0.1564
-7.2 7.92 0.08
-5.76 -0.72 -0.2014
-5.76 0 0.0089
-5.76 0.72 0.3895
-5.76 1.44 0.8683
-5.76 2.16 0.8517
-5.76 2.88 0.6817
-5.76 3.6 0.5306
-5.76 4.32 0.4111
-5.76 5.04 0.3977
-5.76 5.76 0.3609
-5.76 6.48 0.3876
-5.76 7.2 0.3957
-5.76 7.92 0.2963
-5.76 8.64 0.1816
-6.48 8.64 0.08
-5.04 -0.72 -0.2768
-5.04 0 -0.0274
-5.04 0.72 0.1906
-5.04 1.44 0.4242
-5.04 2.16 0.5051
-5.04 2.88 0.4076
-5.04 3.6 0.3777
-5.04 4.32 0.352
-5.04 5.04 0.3517
-5.04 5.76 0.3769
-5.04 6.48 0.4248
-5.04 7.2 0.4202
-5.04 7.92 0.3961
-5.04 8.64 0.3319
-4.32 -0.72 -0.3688
-4.32 0 -0.1273
-4.32 0.72 0.0333
-4.32 1.44 0.1771
-4.32 2.16 0.256
-4.32 2.88 0.2378
-4.32 3.6 0.2699
-4.32 4.32 0.3245
-4.32 5.04 0.3625
-4.32 5.76 0.3653
-4.32 6.48 0.3552
-4.32 7.2 0.4369
-4.32 7.92 0.5773
-4.32 8.64 0.5521
-3.6 0 -0.2509
-3.6 0.72 -0.0336
-3.6 1.44 0.0576
-3.6 2.16 0.1324
-3.6 2.88 0.1651
-3.6 3.6 0.2014
-3.6 4.32 0.2284
-3.6 5.04 0.2685
-3.6 5.76 0.3193
-3.6 6.48 0.3977
-3.6 7.2 0.7705
-3.6 7.92 1.0702
-3.6 8.64 0.8965
-2.88 0 -0.3946
-2.88 0.72 -0.1933
-2.88 1.44 -0.0198
-2.88 2.16 0.0539
-2.88 2.88 0.1207
-2.88 3.6 0.1502
-2.88 4.32 0.1661
-2.88 5.04 0.2144
-2.88 5.76 0.2541
-2.88 6.48 0.6069
-2.88 7.2 1.1273
-2.88 7.92 1.1913
-2.88 8.64 0.8211
-2.16 0.72 -0.3719
-2.16 1.44 -0.2013
-2.16 2.16 -0.0466
-2.16 2.88 0.0224
-2.16 3.6 0.0744
-2.16 4.32 0.1104
-2.16 5.04 0.1288
-2.16 5.76 0.2568
-2.16 6.48 0.8417
-2.16 7.2 1.2906
-2.16 7.92 1.0462
-2.16 8.64 0.6966
-1.44 1.44 -0.4115
-1.44 2.16 -0.271
-1.44 2.88 -0.1456
-1.44 3.6 -0.0343
-1.44 4.32 0.0109
-1.44 5.04 0.0515
-1.44 5.76 0.2034
-1.44 6.48 0.5426
-1.44 7.2 0.7107
-1.44 7.92 0.621
-1.44 8.64 0.4176
-0.72 2.88 -0.3899
-0.72 3.6 -0.2863
-0.72 4.32 -0.1924
-0.72 5.04 -0.1053
-0.72 5.76 -0.0266
-0.72 6.48 0.009
-0.72 7.2 0.1439
-0.72 7.92 0.202
-0.72 8.64 0.159
0 4.32 -0.4491
0 5.04 -0.3623
0 5.76 -0.2772
0 6.48 -0.1913
0 7.2 -0.1031
0 7.92 -0.0222
0 8.64 0.0178
0.72 6.48 -0.4396
0.72 7.2 -0.3481
0.72 7.92 -0.2546
0.72 8.64 -0.1613
0 0 15.3364
Texture Vertices 165
0 0.4167
0.0417 0.4167
0.0417 0.4583
0 0.4583
0.0417 0.5
0 0.5
0.0417 0.5417
0 0.5417
0.0417 0.5833
0 0.5833
0.0417 0.625
0 0.625
0.0417 0.6667
0 0.6667
0 0.7083
0.0417 0.7083
0 0.75
0.0417 0.75
0.0417 0.7917
0 0.7917
0.0417 0.8333
0 0.8333
0.0417 0.875
0 0.875
0.0833 0.4167
0.0833 0.4583
0.0833 0.5
0.0833 0.5417
0.0833 0.5833
0.0833 0.625
0.0833 0.6667
0.0833 0.7083
0.0833 0.75
0.0833 0.7917
0.0833 0.8333
0.0833 0.875
0.0833 0.9167
0.0417 0.9167
0.125 0.4167
0.125 0.4583
0.125 0.5
0.125 0.5417
0.125 0.5833
0.125 0.625
0.125 0.6667
0.125 0.7083
0.125 0.75
0.125 0.7917
0.125 0.8333
0.125 0.875
0.125 0.9167
0.125 0.9583
0.0833 0.9583
0.1667 0.4583
0.1667 0.5
0.1667 0.5417
0.1667 0.5833
0.1667 0.625
0.1667 0.6667
0.1667 0.7083
0.1667 0.75
0.1667 0.7917
0.1667 0.8333
0.1667 0.875
0.1667 0.9167
0.1667 0.9583
0.1667 1
0.125 1
0.2083 0.4583
0.2083 0.5
0.2083 0.5417
0.2083 0.5833
0.2083 0.625
0.2083 0.6667
0.2083 0.7083
0.2083 0.75
0.2083 0.7917
0.2083 0.8333
0.2083 0.875
0.2083 0.9167
0.2083 0.9583
0.2083 1
0.25 0.4583
0.25 0.5
0.25 0.5417
0.25 0.5833
0.25 0.625
0.25 0.6667
0.25 0.7083
0.25 0.75
0.25 0.7917
0.25 0.8333
0.25 0.875
0.25 0.9167
0.25 0.9583
0.25 1
0.2917 0.5
0.2917 0.5417
0.2917 0.5833
0.2917 0.625
0.2917 0.6667
0.2917 0.7083
0.2917 0.75
0.2917 0.7917
0.2917 0.8333
0.2917 0.875
0.2917 0.9167
0.2917 0.9583
0.2917 1
0.3333 0.5
0.3333 0.5417
0.3333 0.5833
0.3333 0.625
0.3333 0.6667
0.3333 0.7083
0.3333 0.75
0.3333 0.7917
0.3333 0.8333
0.3333 0.875
0.3333 0.9167
0.3333 0.9583
0.3333 1
0.375 0.5417
0.375 0.5833
0.375 0.625
0.375 0.6667
0.375 0.7083
0.375 0.75
0.375 0.7917
0.375 0.8333
0.375 0.875
0.375 0.9167
0.375 0.9583
0.375 1
0.4167 0.5833
0.4167 0.625
0.4167 0.6667
0.4167 0.7083
0.4167 0.75
0.4167 0.7917
0.4167 0.8333
0.4167 0.875
0.4167 0.9167
0.4167 0.9583
0.4167 1
0.4583 0.6667
0.4583 0.7083
0.4583 0.75
0.4583 0.7917
0.4583 0.8333
0.4583 0.875
0.4583 0.9167
0.4583 0.9583
0.4583 1
0.5 0.75
0.5 0.7917
0.5 0.8333
0.5 0.875
0.5 0.9167
0.5 0.9583
0.5 1
0.5417 0.875
0.5417 0.9167
0.5417 0.9583
0.5417 1
Faces 274
Face verts 3 flags 0 mat 0
<0,0> <2,2> <1,1>
Face verts 3 flags 0 mat 0
<0,0> <3,3> <2,2>
Face verts 3 flags 0 mat 0
<3,3> <4,4> <2,2>
Face verts 3 flags 0 mat 0
<3,3> <5,5> <4,4>
Face verts 3 flags 0 mat 0
<5,5> <6,6> <4,4>
Face verts 3 flags 0 mat 0
<5,5> <7,7> <6,6>
Face verts 3 flags 0 mat 0
<7,7> <8,8> <6,6>
Face verts 3 flags 0 mat 0
<7,7> <9,9> <8,8>
Face verts 3 flags 0 mat 0
<9,9> <10,10> <8,8>
Face verts 3 flags 0 mat 0
<9,9> <11,11> <10,10>
Face verts 3 flags 0 mat 0
<11,11> <12,12> <10,10>
Face verts 3 flags 0 mat 0
<11,11> <13,13> <12,12>
Face verts 3 flags 0 mat 0
<13,13> <15,14> <12,12>
Face verts 3 flags 0 mat 0
<12,12> <15,14> <14,15>
Face verts 3 flags 0 mat 0
<15,14> <17,16> <14,15>
Face verts 3 flags 0 mat 0
<14,15> <17,16> <16,17>
Face verts 3 flags 0 mat 0
<17,16> <18,18> <16,17>
Face verts 3 flags 0 mat 0
<17,16> <19,19> <18,18>
Face verts 3 flags 0 mat 0
<19,19> <20,20> <18,18>
Face verts 3 flags 0 mat 0
<19,19> <21,21> <20,20>
Face verts 3 flags 0 mat 0
<21,21> <22,22> <20,20>
Face verts 3 flags 0 mat 0
<21,21> <23,23> <22,22>
Face verts 3 flags 0 mat 0
<1,1> <25,25> <24,24>
Face verts 3 flags 0 mat 0
<1,1> <2,2> <25,25>
Face verts 3 flags 0 mat 0
<2,2> <26,26> <25,25>
Face verts 3 flags 0 mat 0
<2,2> <4,4> <26,26>
Face verts 3 flags 0 mat 0
<4,4> <27,27> <26,26>
Face verts 3 flags 0 mat 0
<4,4> <6,6> <27,27>
Face verts 3 flags 0 mat 0
<6,6> <28,28> <27,27>
Face verts 3 flags 0 mat 0
<6,6> <8,8> <28,28>
Face verts 3 flags 0 mat 0
<8,8> <10,10> <28,28>
Face verts 3 flags 0 mat 0
<28,28> <10,10> <29,29>
Face verts 3 flags 0 mat 0
<10,10> <12,12> <29,29>
Face verts 3 flags 0 mat 0
<29,29> <12,12> <30,30>
Face verts 3 flags 0 mat 0
<12,12> <31,31> <30,30>
Face verts 3 flags 0 mat 0
<12,12> <14,15> <31,31>
Face verts 3 flags 0 mat 0
<14,15> <32,32> <31,31>
Face verts 3 flags 0 mat 0
<14,15> <16,17> <32,32>
Face verts 3 flags 0 mat 0
<16,17> <18,18> <32,32>
Face verts 3 flags 0 mat 0
<32,32> <18,18> <33,33>
Face verts 3 flags 0 mat 0
<18,18> <34,34> <33,33>
Face verts 3 flags 0 mat 0
<18,18> <20,20> <34,34>
Face verts 3 flags 0 mat 0
<20,20> <35,35> <34,34>
Face verts 3 flags 0 mat 0
<20,20> <22,22> <35,35>
Face verts 3 flags 0 mat 0
<22,22> <36,36> <35,35>
Face verts 3 flags 0 mat 0
<22,22> <37,37> <36,36>
Face verts 3 flags 0 mat 0
<24,24> <39,39> <38,38>
Face verts 3 flags 0 mat 0
<24,24> <25,25> <39,39>
Face verts 3 flags 0 mat 0
<25,25> <40,40> <39,39>
Face verts 3 flags 0 mat 0
<25,25> <26,26> <40,40>
Face verts 3 flags 0 mat 0
<26,26> <41,41> <40,40>
Face verts 3 flags 0 mat 0
<26,26> <27,27> <41,41>
Face verts 3 flags 0 mat 0
<27,27> <42,42> <41,41>
Face verts 3 flags 0 mat 0
<27,27> <28,28> <42,42>
Face verts 3 flags 0 mat 0
<28,28> <29,29> <42,42>
Face verts 3 flags 0 mat 0
<42,42> <29,29> <43,43>
Face verts 3 flags 0 mat 0
<29,29> <30,30> <43,43>
Face verts 3 flags 0 mat 0
<43,43> <30,30> <44,44>
Face verts 3 flags 0 mat 0
<30,30> <31,31> <44,44>
Face verts 3 flags 0 mat 0
<44,44> <31,31> <45,45>
Face verts 3 flags 0 mat 0
<31,31> <32,32> <45,45>
Face verts 3 flags 0 mat 0
<45,45> <32,32> <46,46>
Face verts 3 flags 0 mat 0
<32,32> <47,47> <46,46>
Face verts 3 flags 0 mat 0
<32,32> <33,33> <47,47>
Face verts 3 flags 0 mat 0
<33,33> <48,48> <47,47>
Face verts 3 flags 0 mat 0
<33,33> <34,34> <48,48>
Face verts 3 flags 0 mat 0
<34,34> <49,49> <48,48>
Face verts 3 flags 0 mat 0
<34,34> <35,35> <49,49>
Face verts 3 flags 0 mat 0
<35,35> <50,50> <49,49>
Face verts 3 flags 0 mat 0
<35,35> <36,36> <50,50>
Face verts 3 flags 0 mat 0
<36,36> <51,51> <50,50>
Face verts 3 flags 0 mat 0
<36,36> <52,52> <51,51>
Face verts 3 flags 0 mat 0
<39,39> <54,54> <53,53>
Face verts 3 flags 0 mat 0
<39,39> <40,40> <54,54>
Face verts 3 flags 0 mat 0
<40,40> <55,55> <54,54>
Face verts 3 flags 0 mat 0
<40,40> <41,41> <55,55>
Face verts 3 flags 0 mat 0
<41,41> <56,56> <55,55>
Face verts 3 flags 0 mat 0
<41,41> <42,42> <56,56>
Face verts 3 flags 0 mat 0
<42,42> <43,43> <56,56>
Face verts 3 flags 0 mat 0
<56,56> <43,43> <57,57>
Face verts 3 flags 0 mat 0
<43,43> <44,44> <57,57>
Face verts 3 flags 0 mat 0
<57,57> <44,44> <58,58>
Face verts 3 flags 0 mat 0
<44,44> <45,45> <58,58>
Face verts 3 flags 0 mat 0
<58,58> <45,45> <59,59>
Face verts 3 flags 0 mat 0
<45,45> <46,46> <59,59>
Face verts 3 flags 0 mat 0
<59,59> <46,46> <60,60>
Face verts 3 flags 0 mat 0
<46,46> <47,47> <60,60>
Face verts 3 flags 0 mat 0
<60,60> <47,47> <61,61>
Face verts 3 flags 0 mat 0
<47,47> <48,48> <61,61>
Face verts 3 flags 0 mat 0
<61,61> <48,48> <62,62>
Face verts 3 flags 0 mat 0
<48,48> <49,49> <62,62>
Face verts 3 flags 0 mat 0
<62,62> <49,49> <63,63>
Face verts 3 flags 0 mat 0
<49,49> <64,64> <63,63>
Face verts 3 flags 0 mat 0
<49,49> <50,50> <64,64>
Face verts 3 flags 0 mat 0
<50,50> <65,65> <64,64>
Face verts 3 flags 0 mat 0
<50,50> <51,51> <65,65>
Face verts 3 flags 0 mat 0
<51,51> <66,66> <65,65>
Face verts 3 flags 0 mat 0
<51,51> <67,67> <66,66>
Face verts 3 flags 0 mat 0
<53,53> <69,69> <68,68>
Face verts 3 flags 0 mat 0
<53,53> <54,54> <69,69>
Face verts 3 flags 0 mat 0
<54,54> <70,70> <69,69>
Face verts 3 flags 0 mat 0
<54,54> <55,55> <70,70>
Face verts 3 flags 0 mat 0
<55,55> <71,71> <70,70>
Face verts 3 flags 0 mat 0
<55,55> <56,56> <71,71>
Face verts 3 flags 0 mat 0
<56,56> <72,72> <71,71>
Face verts 3 flags 0 mat 0
<56,56> <57,57> <72,72>
Face verts 3 flags 0 mat 0
<57,57> <58,58> <72,72>
Face verts 3 flags 0 mat 0
<72,72> <58,58> <73,73>
Face verts 3 flags 0 mat 0
<58,58> <59,59> <73,73>
Face verts 3 flags 0 mat 0
<73,73> <59,59> <74,74>
Face verts 3 flags 0 mat 0
<59,59> <60,60> <74,74>
Face verts 3 flags 0 mat 0
<74,74> <60,60> <75,75>
Face verts 3 flags 0 mat 0
<60,60> <61,61> <75,75>
Face verts 3 flags 0 mat 0
<75,75> <61,61> <76,76>
Face verts 3 flags 0 mat 0
<61,61> <62,62> <76,76>
Face verts 3 flags 0 mat 0
<76,76> <62,62> <77,77>
Face verts 3 flags 0 mat 0
<62,62> <63,63> <77,77>
Face verts 3 flags 0 mat 0
<77,77> <63,63> <78,78>
Face verts 3 flags 0 mat 0
<63,63> <64,64> <78,78>
Face verts 3 flags 0 mat 0
<78,78> <64,64> <79,79>
Face verts 3 flags 0 mat 0
<64,64> <80,80> <79,79>
Face verts 3 flags 0 mat 0
<64,64> <65,65> <80,80>
Face verts 3 flags 0 mat 0
<65,65> <81,81> <80,80>
Face verts 3 flags 0 mat 0
<65,65> <66,66> <81,81>
Face verts 3 flags 0 mat 0
<68,68> <83,83> <82,82>
Face verts 3 flags 0 mat 0
<68,68> <69,69> <83,83>
Face verts 3 flags 0 mat 0
<69,69> <84,84> <83,83>
Face verts 3 flags 0 mat 0
<69,69> <70,70> <84,84>
Face verts 3 flags 0 mat 0
<70,70> <85,85> <84,84>
Face verts 3 flags 0 mat 0
<70,70> <71,71> <85,85>
Face verts 3 flags 0 mat 0
<71,71> <86,86> <85,85>
Face verts 3 flags 0 mat 0
<71,71> <72,72> <86,86>
Face verts 3 flags 0 mat 0
<72,72> <73,73> <86,86>
Face verts 3 flags 0 mat 0
<86,86> <73,73> <87,87>
Face verts 3 flags 0 mat 0
<73,73> <88,88> <87,87>
Face verts 3 flags 0 mat 0
<73,73> <74,74> <88,88>
Face verts 3 flags 0 mat 0
<74,74> <89,89> <88,88>
Face verts 3 flags 0 mat 0
<74,74> <75,75> <89,89>
Face verts 3 flags 0 mat 0
<75,75> <90,90> <89,89>
Face verts 3 flags 0 mat 0
<75,75> <76,76> <90,90>
Face verts 3 flags 0 mat 0
<76,76> <91,91> <90,90>
Face verts 3 flags 0 mat 0
<76,76> <77,77> <91,91>
Face verts 3 flags 0 mat 0
<77,77> <92,92> <91,91>
Face verts 3 flags 0 mat 0
<77,77> <78,78> <92,92>
Face verts 3 flags 0 mat 0
<78,78> <93,93> <92,92>
Face verts 3 flags 0 mat 0
<78,78> <79,79> <93,93>
Face verts 3 flags 0 mat 0
<79,79> <80,80> <93,93>
Face verts 3 flags 0 mat 0
<93,93> <80,80> <94,94>
Face verts 3 flags 0 mat 0
<80,80> <95,95> <94,94>
Face verts 3 flags 0 mat 0
<80,80> <81,81> <95,95>
Face verts 3 flags 0 mat 0
<83,83> <97,97> <96,96>
Face verts 3 flags 0 mat 0
<83,83> <84,84> <97,97>
Face verts 3 flags 0 mat 0
<84,84> <98,98> <97,97>
Face verts 3 flags 0 mat 0
<84,84> <85,85> <98,98>
Face verts 3 flags 0 mat 0
<85,85> <99,99> <98,98>
Face verts 3 flags 0 mat 0
<85,85> <86,86> <99,99>
Face verts 3 flags 0 mat 0
<86,86> <100,100> <99,99>
Face verts 3 flags 0 mat 0
<86,86> <87,87> <100,100>
Face verts 3 flags 0 mat 0
<87,87> <101,101> <100,100>
Face verts 3 flags 0 mat 0
<87,87> <88,88> <101,101>
Face verts 3 flags 0 mat 0
<88,88> <102,102> <101,101>
Face verts 3 flags 0 mat 0
<88,88> <89,89> <102,102>
Face verts 3 flags 0 mat 0
<89,89> <103,103> <102,102>
Face verts 3 flags 0 mat 0
<89,89> <90,90> <103,103>
Face verts 3 flags 0 mat 0
<90,90> <104,104> <103,103>
Face verts 3 flags 0 mat 0
<90,90> <91,91> <104,104>
Face verts 3 flags 0 mat 0
<91,91> <105,105> <104,104>
Face verts 3 flags 0 mat 0
<91,91> <92,92> <105,105>
Face verts 3 flags 0 mat 0
<92,92> <93,93> <105,105>
Face verts 3 flags 0 mat 0
<105,105> <93,93> <106,106>
Face verts 3 flags 0 mat 0
<93,93> <94,94> <106,106>
Face verts 3 flags 0 mat 0
<106,106> <94,94> <107,107>
Face verts 3 flags 0 mat 0
<94,94> <108,108> <107,107>
Face verts 3 flags 0 mat 0
<94,94> <95,95> <108,108>
Face verts 3 flags 0 mat 0
<96,96> <110,110> <109,109>
Face verts 3 flags 0 mat 0
<96,96> <97,97> <110,110>
Face verts 3 flags 0 mat 0
<97,97> <111,111> <110,110>
Face verts 3 flags 0 mat 0
<97,97> <98,98> <111,111>
Face verts 3 flags 0 mat 0
<98,98> <112,112> <111,111>
Face verts 3 flags 0 mat 0
<98,98> <99,99> <112,112>
Face verts 3 flags 0 mat 0
<99,99> <113,113> <112,112>
Face verts 3 flags 0 mat 0
<99,99> <100,100> <113,113>
Face verts 3 flags 0 mat 0
<100,100> <114,114> <113,113>
Face verts 3 flags 0 mat 0
<100,100> <101,101> <114,114>
Face verts 3 flags 0 mat 0
<101,101> <115,115> <114,114>
Face verts 3 flags 0 mat 0
<101,101> <102,102> <115,115>
Face verts 3 flags 0 mat 0
<102,102> <116,116> <115,115>
Face verts 3 flags 0 mat 0
<102,102> <103,103> <116,116>
Face verts 3 flags 0 mat 0
<103,103> <117,117> <116,116>
Face verts 3 flags 0 mat 0
<103,103> <104,104> <117,117>
Face verts 3 flags 0 mat 0
<104,104> <105,105> <117,117>
Face verts 3 flags 0 mat 0
<117,117> <105,105> <118,118>
Face verts 3 flags 0 mat 0
<105,105> <106,106> <118,118>
Face verts 3 flags 0 mat 0
<118,118> <106,106> <119,119>
Face verts 3 flags 0 mat 0
<106,106> <107,107> <119,119>
Face verts 3 flags 0 mat 0
<119,119> <107,107> <120,120>
Face verts 3 flags 0 mat 0
<107,107> <121,121> <120,120>
Face verts 3 flags 0 mat 0
<107,107> <108,108> <121,121>
Face verts 3 flags 0 mat 0
<110,110> <123,123> <122,122>
Face verts 3 flags 0 mat 0
<110,110> <111,111> <123,123>
Face verts 3 flags 0 mat 0
<111,111> <124,124> <123,123>
Face verts 3 flags 0 mat 0
<111,111> <112,112> <124,124>
Face verts 3 flags 0 mat 0
<112,112> <125,125> <124,124>
Face verts 3 flags 0 mat 0
<112,112> <113,113> <125,125>
Face verts 3 flags 0 mat 0
<113,113> <126,126> <125,125>
Face verts 3 flags 0 mat 0
<113,113> <114,114> <126,126>
Face verts 3 flags 0 mat 0
<114,114> <127,127> <126,126>
Face verts 3 flags 0 mat 0
<114,114> <115,115> <127,127>
Face verts 3 flags 0 mat 0
<115,115> <128,128> <127,127>
Face verts 3 flags 0 mat 0
<115,115> <116,116> <128,128>
Face verts 3 flags 0 mat 0
<116,116> <129,129> <128,128>
Face verts 3 flags 0 mat 0
<116,116> <117,117> <129,129>
Face verts 3 flags 0 mat 0
<117,117> <118,118> <129,129>
Face verts 3 flags 0 mat 0
<129,129> <118,118> <130,130>
Face verts 3 flags 0 mat 0
<118,118> <119,119> <130,130>
Face verts 3 flags 0 mat 0
<130,130> <119,119> <131,131>
Face verts 3 flags 0 mat 0
<119,119> <132,132> <131,131>
Face verts 3 flags 0 mat 0
<119,119> <120,120> <132,132>
Face verts 3 flags 0 mat 0
<120,120> <121,121> <132,132>
Face verts 3 flags 0 mat 0
<132,132> <121,121> <133,133>
Face verts 3 flags 0 mat 0
<123,123> <135,135> <134,134>
Face verts 3 flags 0 mat 0
<123,123> <124,124> <135,135>
Face verts 3 flags 0 mat 0
<124,124> <136,136> <135,135>
Face verts 3 flags 0 mat 0
<124,124> <125,125> <136,136>
Face verts 3 flags 0 mat 0
<125,125> <137,137> <136,136>
Face verts 3 flags 0 mat 0
<125,125> <126,126> <137,137>
Face verts 3 flags 0 mat 0
<126,126> <138,138> <137,137>
Face verts 3 flags 0 mat 0
<126,126> <127,127> <138,138>
Face verts 3 flags 0 mat 0
<127,127> <139,139> <138,138>
Face verts 3 flags 0 mat 0
<127,127> <128,128> <139,139>
Face verts 3 flags 0 mat 0
<128,128> <140,140> <139,139>
Face verts 3 flags 0 mat 0
<128,128> <129,129> <140,140>
Face verts 3 flags 0 mat 0
<129,129> <141,141> <140,140>
Face verts 3 flags 0 mat 0
<129,129> <130,130> <141,141>
Face verts 3 flags 0 mat 0
<130,130> <142,142> <141,141>
Face verts 3 flags 0 mat 0
<130,130> <131,131> <142,142>
Face verts 3 flags 0 mat 0
<131,131> <132,132> <142,142>
Face verts 3 flags 0 mat 0
<142,142> <132,132> <143,143>
Face verts 3 flags 0 mat 0
<132,132> <133,133> <143,143>
Face verts 3 flags 0 mat 0
<143,143> <133,133> <144,144>
Face verts 3 flags 0 mat 0
<136,136> <146,146> <145,145>
Face verts 3 flags 0 mat 0
<136,136> <137,137> <146,146>
Face verts 3 flags 0 mat 0
<137,137> <147,147> <146,146>
Face verts 3 flags 0 mat 0
<137,137> <138,138> <147,147>
Face verts 3 flags 0 mat 0
<138,138> <148,148> <147,147>
Face verts 3 flags 0 mat 0
<138,138> <139,139> <148,148>
Face verts 3 flags 0 mat 0
<139,139> <149,149> <148,148>
Face verts 3 flags 0 mat 0
<139,139> <140,140> <149,149>
Face verts 3 flags 0 mat 0
<140,140> <150,150> <149,149>
Face verts 3 flags 0 mat 0
<140,140> <141,141> <150,150>
Face verts 3 flags 0 mat 0
<141,141> <151,151> <150,150>
Face verts 3 flags 0 mat 0
<141,141> <142,142> <151,151>
Face verts 3 flags 0 mat 0
<142,142> <143,143> <151,151>
Face verts 3 flags 0 mat 0
<151,151> <143,143> <152,152>
Face verts 3 flags 0 mat 0
<143,143> <144,144> <152,152>
Face verts 3 flags 0 mat 0
<152,152> <144,144> <153,153>
Face verts 3 flags 0 mat 0
<147,147> <155,155> <154,154>
Face verts 3 flags 0 mat 0
<147,147> <148,148> <155,155>
Face verts 3 flags 0 mat 0
<148,148> <156,156> <155,155>
Face verts 3 flags 0 mat 0
<148,148> <149,149> <156,156>
Face verts 3 flags 0 mat 0
<149,149> <157,157> <156,156>
Face verts 3 flags 0 mat 0
<149,149> <150,150> <157,157>
Face verts 3 flags 0 mat 0
<150,150> <158,158> <157,157>
Face verts 3 flags 0 mat 0
<150,150> <151,151> <158,158>
Face verts 3 flags 0 mat 0
<151,151> <159,159> <158,158>
Face verts 3 flags 0 mat 0
<151,151> <152,152> <159,159>
Face verts 3 flags 0 mat 0
<152,152> <153,153> <159,159>
Face verts 3 flags 0 mat 0
<159,159> <153,153> <160,160>
Face verts 3 flags 0 mat 0
<157,157> <162,162> <161,161>
Face verts 3 flags 0 mat 0
<157,157> <158,158> <162,162>
Face verts 3 flags 0 mat 0
<158,158> <163,163> <162,162>
Face verts 3 flags 0 mat 0
<158,158> <159,159> <163,163>
Face verts 3 flags 0 mat 0
<159,159> <164,164> <163,163>
Face verts 3 flags 0 mat 0
<159,159> <160,160> <164,164>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\isle-20.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "plastic"
