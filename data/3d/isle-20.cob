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
World Vertices 102
-8.64 -1.92 -0.4373
-7.68 -1.92 -0.497
-7.68 -0.96 -0.1474
-8.64 -0.96 -0.0878
-7.68 0 0.0948
-8.64 0 0.1227
-7.68 0.96 0.9799
-8.64 0.96 1.1215
-7.68 1.92 1.6001
-8.64 1.92 1.5775
-7.68 2.88 1.1832
-8.64 2.88 1.1354
-7.68 3.84 0.6231
-8.64 3.84 0.581
-7.68 4.8 0.3567
-8.64 4.8 0.3738
-7.68 5.76 0.3334
-8.64 5.76 0.1863
-7.68 6.72 0.1524
-8.64 6.72 0.08
-6.72 -0.96 -0.2113
-6.72 0 0.0662
-6.72 0.96 0.8378
-6.72 1.92 1.3593
-6.72 2.88 1.0276
-6.72 3.84 0.6245
-6.72 4.8 0.4241
-6.72 5.76 0.3433
-6.72 6.72 0.3154
-6.72 7.68 0.1517
-7.68 7.68 0.08
-5.76 -0.96 -0.2891
-5.76 0 0.0089
-5.76 0.96 0.6051
-5.76 1.92 0.9052
-5.76 2.88 0.6817
-5.76 3.84 0.4827
-5.76 4.8 0.3999
-5.76 5.76 0.3609
-5.76 6.72 0.3904
-5.76 7.68 0.3387
-5.76 8.64 0.1816
-6.72 8.64 0.08
-4.8 -0.96 -0.3899
-4.8 0 -0.0562
-4.8 0.96 0.1949
-4.8 1.92 0.4056
-4.8 2.88 0.3637
-4.8 3.84 0.296
-4.8 4.8 0.3456
-4.8 5.76 0.3619
-4.8 6.72 0.4127
-4.8 7.68 0.3946
-4.8 8.64 0.405
-3.84 -0.96 -0.5125
-3.84 0 -0.2074
-3.84 0.96 0.0206
-3.84 1.92 0.1535
-3.84 2.88 0.1812
-3.84 3.84 0.2252
-3.84 4.8 0.2937
-3.84 5.76 0.3579
-3.84 6.72 0.4197
-3.84 7.68 0.8363
-3.84 8.64 0.8354
-2.88 0 -0.3946
-2.88 0.96 -0.1292
-2.88 1.92 0.0302
-2.88 2.88 0.1207
-2.88 3.84 0.1539
-2.88 4.8 0.197
-2.88 5.76 0.2541
-2.88 6.72 0.8116
-2.88 7.68 1.2831
-2.88 8.64 0.8211
-1.92 0.96 -0.3784
-1.92 1.92 -0.1683
-1.92 2.88 -0.0112
-1.92 3.84 0.0553
-1.92 4.8 0.094
-1.92 5.76 0.2683
-1.92 6.72 0.9429
-1.92 7.68 1.0545
-1.92 8.64 0.6231
-0.96 1.92 -0.4677
-0.96 2.88 -0.3079
-0.96 3.84 -0.1692
-0.96 4.8 -0.0476
-0.96 5.76 0.0105
-0.96 6.72 0.2335
-0.96 7.68 0.3445
-0.96 8.64 0.2311
0 3.84 -0.5032
0 4.8 -0.3909
0 5.76 -0.2772
0 6.72 -0.1622
0 7.68 -0.0426
0 8.64 0.0178
0.96 6.72 -0.4873
0.96 7.68 -0.3666
0.96 8.64 -0.2419
0 0 15.5433
Texture Vertices 101
0 0.3889
0.0556 0.3889
0.0556 0.4444
0 0.4444
0.0556 0.5
0 0.5
0.0556 0.5556
0 0.5556
0.0556 0.6111
0 0.6111
0.0556 0.6667
0 0.6667
0.0556 0.7222
0 0.7222
0.0556 0.7778
0 0.7778
0.0556 0.8333
0 0.8333
0.0556 0.8889
0 0.8889
0.1111 0.4444
0.1111 0.5
0.1111 0.5556
0.1111 0.6111
0.1111 0.6667
0.1111 0.7222
0.1111 0.7778
0.1111 0.8333
0.1111 0.8889
0.1111 0.9444
0.0556 0.9444
0.1667 0.4444
0.1667 0.5
0.1667 0.5556
0.1667 0.6111
0.1667 0.6667
0.1667 0.7222
0.1667 0.7778
0.1667 0.8333
0.1667 0.8889
0.1667 0.9444
0.1667 1
0.1111 1
0.2222 0.4444
0.2222 0.5
0.2222 0.5556
0.2222 0.6111
0.2222 0.6667
0.2222 0.7222
0.2222 0.7778
0.2222 0.8333
0.2222 0.8889
0.2222 0.9444
0.2222 1
0.2778 0.4444
0.2778 0.5
0.2778 0.5556
0.2778 0.6111
0.2778 0.6667
0.2778 0.7222
0.2778 0.7778
0.2778 0.8333
0.2778 0.8889
0.2778 0.9444
0.2778 1
0.3333 0.5
0.3333 0.5556
0.3333 0.6111
0.3333 0.6667
0.3333 0.7222
0.3333 0.7778
0.3333 0.8333
0.3333 0.8889
0.3333 0.9444
0.3333 1
0.3889 0.5556
0.3889 0.6111
0.3889 0.6667
0.3889 0.7222
0.3889 0.7778
0.3889 0.8333
0.3889 0.8889
0.3889 0.9444
0.3889 1
0.4444 0.6111
0.4444 0.6667
0.4444 0.7222
0.4444 0.7778
0.4444 0.8333
0.4444 0.8889
0.4444 0.9444
0.4444 1
0.5 0.7222
0.5 0.7778
0.5 0.8333
0.5 0.8889
0.5 0.9444
0.5 1
0.5556 0.8889
0.5556 0.9444
0.5556 1
Faces 158
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
<13,13> <14,14> <12,12>
Face verts 3 flags 0 mat 0
<13,13> <15,15> <14,14>
Face verts 3 flags 0 mat 0
<15,15> <16,16> <14,14>
Face verts 3 flags 0 mat 0
<15,15> <17,17> <16,16>
Face verts 3 flags 0 mat 0
<17,17> <18,18> <16,16>
Face verts 3 flags 0 mat 0
<17,17> <19,19> <18,18>
Face verts 3 flags 0 mat 0
<2,2> <21,21> <20,20>
Face verts 3 flags 0 mat 0
<2,2> <4,4> <21,21>
Face verts 3 flags 0 mat 0
<4,4> <22,22> <21,21>
Face verts 3 flags 0 mat 0
<4,4> <6,6> <22,22>
Face verts 3 flags 0 mat 0
<6,6> <23,23> <22,22>
Face verts 3 flags 0 mat 0
<6,6> <8,8> <23,23>
Face verts 3 flags 0 mat 0
<8,8> <10,10> <23,23>
Face verts 3 flags 0 mat 0
<23,23> <10,10> <24,24>
Face verts 3 flags 0 mat 0
<10,10> <12,12> <24,24>
Face verts 3 flags 0 mat 0
<24,24> <12,12> <25,25>
Face verts 3 flags 0 mat 0
<12,12> <26,26> <25,25>
Face verts 3 flags 0 mat 0
<12,12> <14,14> <26,26>
Face verts 3 flags 0 mat 0
<14,14> <27,27> <26,26>
Face verts 3 flags 0 mat 0
<14,14> <16,16> <27,27>
Face verts 3 flags 0 mat 0
<16,16> <28,28> <27,27>
Face verts 3 flags 0 mat 0
<16,16> <18,18> <28,28>
Face verts 3 flags 0 mat 0
<18,18> <29,29> <28,28>
Face verts 3 flags 0 mat 0
<18,18> <30,30> <29,29>
Face verts 3 flags 0 mat 0
<20,20> <32,32> <31,31>
Face verts 3 flags 0 mat 0
<20,20> <21,21> <32,32>
Face verts 3 flags 0 mat 0
<21,21> <33,33> <32,32>
Face verts 3 flags 0 mat 0
<21,21> <22,22> <33,33>
Face verts 3 flags 0 mat 0
<22,22> <34,34> <33,33>
Face verts 3 flags 0 mat 0
<22,22> <23,23> <34,34>
Face verts 3 flags 0 mat 0
<23,23> <24,24> <34,34>
Face verts 3 flags 0 mat 0
<34,34> <24,24> <35,35>
Face verts 3 flags 0 mat 0
<24,24> <25,25> <35,35>
Face verts 3 flags 0 mat 0
<35,35> <25,25> <36,36>
Face verts 3 flags 0 mat 0
<25,25> <26,26> <36,36>
Face verts 3 flags 0 mat 0
<36,36> <26,26> <37,37>
Face verts 3 flags 0 mat 0
<26,26> <27,27> <37,37>
Face verts 3 flags 0 mat 0
<37,37> <27,27> <38,38>
Face verts 3 flags 0 mat 0
<27,27> <28,28> <38,38>
Face verts 3 flags 0 mat 0
<38,38> <28,28> <39,39>
Face verts 3 flags 0 mat 0
<28,28> <40,40> <39,39>
Face verts 3 flags 0 mat 0
<28,28> <29,29> <40,40>
Face verts 3 flags 0 mat 0
<29,29> <41,41> <40,40>
Face verts 3 flags 0 mat 0
<29,29> <42,42> <41,41>
Face verts 3 flags 0 mat 0
<31,31> <44,44> <43,43>
Face verts 3 flags 0 mat 0
<31,31> <32,32> <44,44>
Face verts 3 flags 0 mat 0
<32,32> <45,45> <44,44>
Face verts 3 flags 0 mat 0
<32,32> <33,33> <45,45>
Face verts 3 flags 0 mat 0
<33,33> <46,46> <45,45>
Face verts 3 flags 0 mat 0
<33,33> <34,34> <46,46>
Face verts 3 flags 0 mat 0
<34,34> <35,35> <46,46>
Face verts 3 flags 0 mat 0
<46,46> <35,35> <47,47>
Face verts 3 flags 0 mat 0
<35,35> <36,36> <47,47>
Face verts 3 flags 0 mat 0
<47,47> <36,36> <48,48>
Face verts 3 flags 0 mat 0
<36,36> <37,37> <48,48>
Face verts 3 flags 0 mat 0
<48,48> <37,37> <49,49>
Face verts 3 flags 0 mat 0
<37,37> <38,38> <49,49>
Face verts 3 flags 0 mat 0
<49,49> <38,38> <50,50>
Face verts 3 flags 0 mat 0
<38,38> <39,39> <50,50>
Face verts 3 flags 0 mat 0
<50,50> <39,39> <51,51>
Face verts 3 flags 0 mat 0
<39,39> <52,52> <51,51>
Face verts 3 flags 0 mat 0
<39,39> <40,40> <52,52>
Face verts 3 flags 0 mat 0
<40,40> <53,53> <52,52>
Face verts 3 flags 0 mat 0
<40,40> <41,41> <53,53>
Face verts 3 flags 0 mat 0
<43,43> <55,55> <54,54>
Face verts 3 flags 0 mat 0
<43,43> <44,44> <55,55>
Face verts 3 flags 0 mat 0
<44,44> <56,56> <55,55>
Face verts 3 flags 0 mat 0
<44,44> <45,45> <56,56>
Face verts 3 flags 0 mat 0
<45,45> <57,57> <56,56>
Face verts 3 flags 0 mat 0
<45,45> <46,46> <57,57>
Face verts 3 flags 0 mat 0
<46,46> <47,47> <57,57>
Face verts 3 flags 0 mat 0
<57,57> <47,47> <58,58>
Face verts 3 flags 0 mat 0
<47,47> <48,48> <58,58>
Face verts 3 flags 0 mat 0
<58,58> <48,48> <59,59>
Face verts 3 flags 0 mat 0
<48,48> <60,60> <59,59>
Face verts 3 flags 0 mat 0
<48,48> <49,49> <60,60>
Face verts 3 flags 0 mat 0
<49,49> <61,61> <60,60>
Face verts 3 flags 0 mat 0
<49,49> <50,50> <61,61>
Face verts 3 flags 0 mat 0
<50,50> <51,51> <61,61>
Face verts 3 flags 0 mat 0
<61,61> <51,51> <62,62>
Face verts 3 flags 0 mat 0
<51,51> <52,52> <62,62>
Face verts 3 flags 0 mat 0
<62,62> <52,52> <63,63>
Face verts 3 flags 0 mat 0
<52,52> <53,53> <63,63>
Face verts 3 flags 0 mat 0
<63,63> <53,53> <64,64>
Face verts 3 flags 0 mat 0
<55,55> <66,66> <65,65>
Face verts 3 flags 0 mat 0
<55,55> <56,56> <66,66>
Face verts 3 flags 0 mat 0
<56,56> <67,67> <66,66>
Face verts 3 flags 0 mat 0
<56,56> <57,57> <67,67>
Face verts 3 flags 0 mat 0
<57,57> <68,68> <67,67>
Face verts 3 flags 0 mat 0
<57,57> <58,58> <68,68>
Face verts 3 flags 0 mat 0
<58,58> <69,69> <68,68>
Face verts 3 flags 0 mat 0
<58,58> <59,59> <69,69>
Face verts 3 flags 0 mat 0
<59,59> <70,70> <69,69>
Face verts 3 flags 0 mat 0
<59,59> <60,60> <70,70>
Face verts 3 flags 0 mat 0
<60,60> <71,71> <70,70>
Face verts 3 flags 0 mat 0
<60,60> <61,61> <71,71>
Face verts 3 flags 0 mat 0
<61,61> <62,62> <71,71>
Face verts 3 flags 0 mat 0
<71,71> <62,62> <72,72>
Face verts 3 flags 0 mat 0
<62,62> <63,63> <72,72>
Face verts 3 flags 0 mat 0
<72,72> <63,63> <73,73>
Face verts 3 flags 0 mat 0
<63,63> <74,74> <73,73>
Face verts 3 flags 0 mat 0
<63,63> <64,64> <74,74>
Face verts 3 flags 0 mat 0
<66,66> <76,76> <75,75>
Face verts 3 flags 0 mat 0
<66,66> <67,67> <76,76>
Face verts 3 flags 0 mat 0
<67,67> <77,77> <76,76>
Face verts 3 flags 0 mat 0
<67,67> <68,68> <77,77>
Face verts 3 flags 0 mat 0
<68,68> <78,78> <77,77>
Face verts 3 flags 0 mat 0
<68,68> <69,69> <78,78>
Face verts 3 flags 0 mat 0
<69,69> <79,79> <78,78>
Face verts 3 flags 0 mat 0
<69,69> <70,70> <79,79>
Face verts 3 flags 0 mat 0
<70,70> <80,80> <79,79>
Face verts 3 flags 0 mat 0
<70,70> <71,71> <80,80>
Face verts 3 flags 0 mat 0
<71,71> <72,72> <80,80>
Face verts 3 flags 0 mat 0
<80,80> <72,72> <81,81>
Face verts 3 flags 0 mat 0
<72,72> <82,82> <81,81>
Face verts 3 flags 0 mat 0
<72,72> <73,73> <82,82>
Face verts 3 flags 0 mat 0
<73,73> <74,74> <82,82>
Face verts 3 flags 0 mat 0
<82,82> <74,74> <83,83>
Face verts 3 flags 0 mat 0
<76,76> <85,85> <84,84>
Face verts 3 flags 0 mat 0
<76,76> <77,77> <85,85>
Face verts 3 flags 0 mat 0
<77,77> <86,86> <85,85>
Face verts 3 flags 0 mat 0
<77,77> <78,78> <86,86>
Face verts 3 flags 0 mat 0
<78,78> <87,87> <86,86>
Face verts 3 flags 0 mat 0
<78,78> <79,79> <87,87>
Face verts 3 flags 0 mat 0
<79,79> <88,88> <87,87>
Face verts 3 flags 0 mat 0
<79,79> <80,80> <88,88>
Face verts 3 flags 0 mat 0
<80,80> <89,89> <88,88>
Face verts 3 flags 0 mat 0
<80,80> <81,81> <89,89>
Face verts 3 flags 0 mat 0
<81,81> <90,90> <89,89>
Face verts 3 flags 0 mat 0
<81,81> <82,82> <90,90>
Face verts 3 flags 0 mat 0
<82,82> <83,83> <90,90>
Face verts 3 flags 0 mat 0
<90,90> <83,83> <91,91>
Face verts 3 flags 0 mat 0
<86,86> <93,93> <92,92>
Face verts 3 flags 0 mat 0
<86,86> <87,87> <93,93>
Face verts 3 flags 0 mat 0
<87,87> <94,94> <93,93>
Face verts 3 flags 0 mat 0
<87,87> <88,88> <94,94>
Face verts 3 flags 0 mat 0
<88,88> <95,95> <94,94>
Face verts 3 flags 0 mat 0
<88,88> <89,89> <95,95>
Face verts 3 flags 0 mat 0
<89,89> <96,96> <95,95>
Face verts 3 flags 0 mat 0
<89,89> <90,90> <96,96>
Face verts 3 flags 0 mat 0
<90,90> <91,91> <96,96>
Face verts 3 flags 0 mat 0
<96,96> <91,91> <97,97>
Face verts 3 flags 0 mat 0
<95,95> <99,99> <98,98>
Face verts 3 flags 0 mat 0
<95,95> <96,96> <99,99>
Face verts 3 flags 0 mat 0
<96,96> <100,100> <99,99>
Face verts 3 flags 0 mat 0
<96,96> <97,97> <100,100>
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
