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
World Vertices 99
-2.88 -8.64 -0.3183
-1.92 -8.64 -0.0377
-1.92 -7.68 -0.2784
-2.88 -7.68 -0.5311
-0.96 -8.64 0.1363
-0.96 -7.68 -0.0289
-0.96 -6.72 -0.3127
-1.92 -6.72 -0.5352
0 -8.64 0.2534
0 -7.68 0.1066
0 -6.72 -0.0927
0 -5.76 -0.4082
-0.96 -5.76 -0.5958
0.96 -8.64 0.3199
0.96 -7.68 0.3121
0.96 -6.72 0.0907
0.96 -5.76 -0.2124
1.92 -8.64 0.3229
1.92 -7.68 0.2927
1.92 -6.72 0.3566
1.92 -5.76 -0.0279
1.92 -4.8 -0.3447
0.96 -4.8 -0.5256
2.88 -8.64 0.3198
2.88 -7.68 0.2466
2.88 -6.72 0.1997
2.88 -5.76 0.1135
2.88 -4.8 -0.1501
3.84 -8.64 0.3662
3.84 -7.68 0.2738
3.84 -6.72 0.217
3.84 -5.76 0.1368
3.84 -4.8 0.0081
3.84 -3.84 -0.1941
2.88 -3.84 -0.4302
4.8 -8.64 0.3595
4.8 -7.68 0.3612
4.8 -6.72 0.3414
4.8 -5.76 0.2187
4.8 -4.8 0.1086
4.8 -3.84 0.015
4.8 -2.88 -0.1161
3.84 -2.88 -0.4154
4.8 -1.92 -0.2739
3.84 -1.92 -0.5938
5.76 -8.64 0.1752
5.76 -7.68 0.3149
5.76 -6.72 0.3584
5.76 -5.76 0.3017
5.76 -4.8 0.1914
5.76 -3.84 0.113
5.76 -2.88 0.1232
5.76 -1.92 0.4133
5.76 -0.96 0.5858
4.8 -0.96 -0.2709
5.76 0 0.5774
4.8 0 -0.3956
5.76 0.96 0.2471
4.8 0.96 -0.7444
5.76 1.92 -0.5537
4.8 1.92 -0.9
6.72 -8.64 0.08
6.72 -7.68 0.1429
6.72 -6.72 0.2943
6.72 -5.76 0.3576
6.72 -4.8 0.346
6.72 -3.84 0.2022
6.72 -2.88 0.3947
6.72 -1.92 0.62
6.72 -0.96 0.62
6.72 0 0.62
6.72 0.96 0.62
6.72 1.92 0.1198
6.72 2.88 -0.6753
5.76 2.88 -0.884
7.68 -7.68 0.08
7.68 -6.72 0.1431
7.68 -5.76 0.3162
7.68 -4.8 0.3916
7.68 -3.84 0.379
7.68 -2.88 0.5277
7.68 -1.92 0.62
7.68 -0.96 0.62
7.68 0 0.62
7.68 0.96 0.62
7.68 1.92 0.3948
7.68 2.88 -0.5041
8.64 -6.72 0.08
8.64 -5.76 0.1764
8.64 -4.8 0.3915
8.64 -3.84 0.4175
8.64 -2.88 0.5179
8.64 -1.92 0.62
8.64 -0.96 0.62
8.64 0 0.62
8.64 0.96 0.62
8.64 1.92 0.3465
8.64 2.88 -0.3839
0 0 15.5433
Texture Vertices 98
0.3333 0
0.3889 0
0.3889 0.0556
0.3333 0.0556
0.4444 0
0.4444 0.0556
0.4444 0.1111
0.3889 0.1111
0.5 0
0.5 0.0556
0.5 0.1111
0.5 0.1667
0.4444 0.1667
0.5556 0
0.5556 0.0556
0.5556 0.1111
0.5556 0.1667
0.6111 0
0.6111 0.0556
0.6111 0.1111
0.6111 0.1667
0.6111 0.2222
0.5556 0.2222
0.6667 0
0.6667 0.0556
0.6667 0.1111
0.6667 0.1667
0.6667 0.2222
0.7222 0
0.7222 0.0556
0.7222 0.1111
0.7222 0.1667
0.7222 0.2222
0.7222 0.2778
0.6667 0.2778
0.7778 0
0.7778 0.0556
0.7778 0.1111
0.7778 0.1667
0.7778 0.2222
0.7778 0.2778
0.7778 0.3333
0.7222 0.3333
0.7778 0.3889
0.7222 0.3889
0.8333 0
0.8333 0.0556
0.8333 0.1111
0.8333 0.1667
0.8333 0.2222
0.8333 0.2778
0.8333 0.3333
0.8333 0.3889
0.7778 0.4444
0.8333 0.4444
0.8333 0.5
0.7778 0.5
0.8333 0.5556
0.7778 0.5556
0.8333 0.6111
0.7778 0.6111
0.8889 0
0.8889 0.0556
0.8889 0.1111
0.8889 0.1667
0.8889 0.2222
0.8889 0.2778
0.8889 0.3333
0.8889 0.3889
0.8889 0.4444
0.8889 0.5
0.8889 0.5556
0.8889 0.6111
0.8889 0.6667
0.8333 0.6667
0.9444 0.0556
0.9444 0.1111
0.9444 0.1667
0.9444 0.2222
0.9444 0.2778
0.9444 0.3333
0.9444 0.3889
0.9444 0.4444
0.9444 0.5
0.9444 0.5556
0.9444 0.6111
0.9444 0.6667
1 0.1111
1 0.1667
1 0.2222
1 0.2778
1 0.3333
1 0.3889
1 0.4444
1 0.5
1 0.5556
1 0.6111
1 0.6667
Faces 146
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
<13,13> <14,14> <17,17>
Face verts 3 flags 0 mat 0
<17,17> <14,14> <18,18>
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
<17,17> <18,18> <23,23>
Face verts 3 flags 0 mat 0
<23,23> <18,18> <24,24>
Face verts 3 flags 0 mat 0
<18,18> <25,25> <24,24>
Face verts 3 flags 0 mat 0
<18,18> <19,19> <25,25>
Face verts 3 flags 0 mat 0
<19,19> <20,20> <25,25>
Face verts 3 flags 0 mat 0
<25,25> <20,20> <26,26>
Face verts 3 flags 0 mat 0
<20,20> <27,27> <26,26>
Face verts 3 flags 0 mat 0
<20,20> <21,21> <27,27>
Face verts 3 flags 0 mat 0
<23,23> <29,29> <28,28>
Face verts 3 flags 0 mat 0
<23,23> <24,24> <29,29>
Face verts 3 flags 0 mat 0
<24,24> <30,30> <29,29>
Face verts 3 flags 0 mat 0
<24,24> <25,25> <30,30>
Face verts 3 flags 0 mat 0
<25,25> <31,31> <30,30>
Face verts 3 flags 0 mat 0
<25,25> <26,26> <31,31>
Face verts 3 flags 0 mat 0
<26,26> <32,32> <31,31>
Face verts 3 flags 0 mat 0
<26,26> <27,27> <32,32>
Face verts 3 flags 0 mat 0
<27,27> <33,33> <32,32>
Face verts 3 flags 0 mat 0
<27,27> <34,34> <33,33>
Face verts 3 flags 0 mat 0
<28,28> <36,36> <35,35>
Face verts 3 flags 0 mat 0
<28,28> <29,29> <36,36>
Face verts 3 flags 0 mat 0
<29,29> <37,37> <36,36>
Face verts 3 flags 0 mat 0
<29,29> <30,30> <37,37>
Face verts 3 flags 0 mat 0
<30,30> <38,38> <37,37>
Face verts 3 flags 0 mat 0
<30,30> <31,31> <38,38>
Face verts 3 flags 0 mat 0
<31,31> <39,39> <38,38>
Face verts 3 flags 0 mat 0
<31,31> <32,32> <39,39>
Face verts 3 flags 0 mat 0
<32,32> <40,40> <39,39>
Face verts 3 flags 0 mat 0
<32,32> <33,33> <40,40>
Face verts 3 flags 0 mat 0
<33,33> <41,41> <40,40>
Face verts 3 flags 0 mat 0
<33,33> <42,42> <41,41>
Face verts 3 flags 0 mat 0
<42,42> <43,43> <41,41>
Face verts 3 flags 0 mat 0
<42,42> <44,44> <43,43>
Face verts 3 flags 0 mat 0
<35,35> <46,46> <45,45>
Face verts 3 flags 0 mat 0
<35,35> <36,36> <46,46>
Face verts 3 flags 0 mat 0
<36,36> <47,47> <46,46>
Face verts 3 flags 0 mat 0
<36,36> <37,37> <47,47>
Face verts 3 flags 0 mat 0
<37,37> <48,48> <47,47>
Face verts 3 flags 0 mat 0
<37,37> <38,38> <48,48>
Face verts 3 flags 0 mat 0
<38,38> <49,49> <48,48>
Face verts 3 flags 0 mat 0
<38,38> <39,39> <49,49>
Face verts 3 flags 0 mat 0
<39,39> <50,50> <49,49>
Face verts 3 flags 0 mat 0
<39,39> <40,40> <50,50>
Face verts 3 flags 0 mat 0
<40,40> <51,51> <50,50>
Face verts 3 flags 0 mat 0
<40,40> <41,41> <51,51>
Face verts 3 flags 0 mat 0
<41,41> <43,43> <51,51>
Face verts 3 flags 0 mat 0
<51,51> <43,43> <52,52>
Face verts 3 flags 0 mat 0
<43,43> <54,53> <52,52>
Face verts 3 flags 0 mat 0
<52,52> <54,53> <53,54>
Face verts 3 flags 0 mat 0
<54,53> <55,55> <53,54>
Face verts 3 flags 0 mat 0
<54,53> <56,56> <55,55>
Face verts 3 flags 0 mat 0
<56,56> <57,57> <55,55>
Face verts 3 flags 0 mat 0
<56,56> <58,58> <57,57>
Face verts 3 flags 0 mat 0
<58,58> <59,59> <57,57>
Face verts 3 flags 0 mat 0
<58,58> <60,60> <59,59>
Face verts 3 flags 0 mat 0
<45,45> <62,62> <61,61>
Face verts 3 flags 0 mat 0
<45,45> <46,46> <62,62>
Face verts 3 flags 0 mat 0
<46,46> <63,63> <62,62>
Face verts 3 flags 0 mat 0
<46,46> <47,47> <63,63>
Face verts 3 flags 0 mat 0
<47,47> <64,64> <63,63>
Face verts 3 flags 0 mat 0
<47,47> <48,48> <64,64>
Face verts 3 flags 0 mat 0
<48,48> <65,65> <64,64>
Face verts 3 flags 0 mat 0
<48,48> <49,49> <65,65>
Face verts 3 flags 0 mat 0
<49,49> <66,66> <65,65>
Face verts 3 flags 0 mat 0
<49,49> <50,50> <66,66>
Face verts 3 flags 0 mat 0
<50,50> <51,51> <66,66>
Face verts 3 flags 0 mat 0
<66,66> <51,51> <67,67>
Face verts 3 flags 0 mat 0
<51,51> <52,52> <67,67>
Face verts 3 flags 0 mat 0
<67,67> <52,52> <68,68>
Face verts 3 flags 0 mat 0
<52,52> <53,54> <68,68>
Face verts 3 flags 0 mat 0
<68,68> <53,54> <69,69>
Face verts 3 flags 0 mat 0
<53,54> <70,70> <69,69>
Face verts 3 flags 0 mat 0
<53,54> <55,55> <70,70>
Face verts 3 flags 0 mat 0
<55,55> <71,71> <70,70>
Face verts 3 flags 0 mat 0
<55,55> <57,57> <71,71>
Face verts 3 flags 0 mat 0
<57,57> <72,72> <71,71>
Face verts 3 flags 0 mat 0
<57,57> <59,59> <72,72>
Face verts 3 flags 0 mat 0
<59,59> <73,73> <72,72>
Face verts 3 flags 0 mat 0
<59,59> <74,74> <73,73>
Face verts 3 flags 0 mat 0
<62,62> <76,76> <75,75>
Face verts 3 flags 0 mat 0
<62,62> <63,63> <76,76>
Face verts 3 flags 0 mat 0
<63,63> <77,77> <76,76>
Face verts 3 flags 0 mat 0
<63,63> <64,64> <77,77>
Face verts 3 flags 0 mat 0
<64,64> <65,65> <77,77>
Face verts 3 flags 0 mat 0
<77,77> <65,65> <78,78>
Face verts 3 flags 0 mat 0
<65,65> <79,79> <78,78>
Face verts 3 flags 0 mat 0
<65,65> <66,66> <79,79>
Face verts 3 flags 0 mat 0
<66,66> <67,67> <79,79>
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
<76,76> <88,88> <87,87>
Face verts 3 flags 0 mat 0
<76,76> <77,77> <88,88>
Face verts 3 flags 0 mat 0
<77,77> <89,89> <88,88>
Face verts 3 flags 0 mat 0
<77,77> <78,78> <89,89>
Face verts 3 flags 0 mat 0
<78,78> <79,79> <89,89>
Face verts 3 flags 0 mat 0
<89,89> <79,79> <90,90>
Face verts 3 flags 0 mat 0
<79,79> <80,80> <90,90>
Face verts 3 flags 0 mat 0
<90,90> <80,80> <91,91>
Face verts 3 flags 0 mat 0
<80,80> <92,92> <91,91>
Face verts 3 flags 0 mat 0
<80,80> <81,81> <92,92>
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
<85,85> <97,97> <96,96>
Face verts 3 flags 0 mat 0
<85,85> <86,86> <97,97>
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
