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
World Vertices 90
-1.92 6.72 -0.7122
-0.96 6.72 -0.3858
-0.96 7.68 -0.0898
-1.92 7.68 -0.5981
-0.96 8.64 0.082
-1.92 8.64 -0.4969
-0.96 5.76 -0.5876
0 5.76 -0.2708
0 6.72 0.119
0 7.68 0.3052
0 8.64 0.339
0 4.8 -0.5279
0.96 4.8 -0.2858
0.96 5.76 0.093
0.96 6.72 0.3163
0.96 7.68 0.34
0.96 8.64 0.34
0.96 3.84 -0.5311
1.92 3.84 -0.3168
1.92 4.8 -0.0411
1.92 5.76 0.2267
1.92 6.72 0.34
1.92 7.68 0.34
1.92 8.64 0.34
1.92 2.88 -0.5745
2.88 2.88 -0.3779
2.88 3.84 -0.1017
2.88 4.8 0.0651
2.88 5.76 0.2801
2.88 6.72 0.34
2.88 7.68 0.34
2.88 8.64 0.34
3.84 2.88 -0.1654
3.84 3.84 0.0434
3.84 4.8 0.1408
3.84 5.76 0.2525
3.84 6.72 0.3376
3.84 7.68 0.34
3.84 8.64 0.34
3.84 1.92 -0.4331
4.8 1.92 -0.21
4.8 2.88 0.0052
4.8 3.84 0.4185
4.8 4.8 0.5097
4.8 5.76 0.3503
4.8 6.72 0.3374
4.8 7.68 0.3382
4.8 8.64 0.3354
4.8 0.96 -0.4672
5.76 0.96 -0.2385
5.76 1.92 -0.0088
5.76 2.88 0.5036
5.76 3.84 1.061
5.76 4.8 0.9979
5.76 5.76 0.6542
5.76 6.72 0.3636
5.76 7.68 0.3005
5.76 8.64 0.1712
5.76 0 -0.4955
6.72 0 -0.2848
6.72 0.96 -0.0226
6.72 1.92 0.1158
6.72 2.88 0.6231
6.72 3.84 1.3632
6.72 4.8 1.345
6.72 5.76 0.6415
6.72 6.72 0.2962
6.72 7.68 0.1462
6.72 8.64 0.08
6.72 -0.96 -0.5537
7.68 -0.96 -0.3932
7.68 0 -0.0918
7.68 0.96 0.068
7.68 1.92 0.1671
7.68 2.88 0.324
7.68 3.84 0.869
7.68 4.8 0.9797
7.68 5.76 0.3563
7.68 6.72 0.1453
7.68 7.68 0.08
8.64 -0.96 -0.2629
8.64 0 0.0101
8.64 0.96 0.1502
8.64 1.92 0.2293
8.64 2.88 0.3438
8.64 3.84 0.4975
8.64 4.8 0.476
8.64 5.76 0.1758
8.64 6.72 0.08
0 0 15.5433
Texture Vertices 89
0.3889 0.8889
0.4444 0.8889
0.3889 0.9444
0.4444 0.9444
0.3889 1
0.4444 1
0.4444 0.8333
0.5 0.8333
0.5 0.8889
0.5 0.9444
0.5 1
0.5 0.7778
0.5556 0.7778
0.5556 0.8333
0.5556 0.8889
0.5556 0.9444
0.5556 1
0.5556 0.7222
0.6111 0.7222
0.6111 0.7778
0.6111 0.8333
0.6111 0.8889
0.6111 0.9444
0.6111 1
0.6111 0.6667
0.6667 0.6667
0.6667 0.7222
0.6667 0.7778
0.6667 0.8333
0.6667 0.8889
0.6667 0.9444
0.6667 1
0.7222 0.6667
0.7222 0.7222
0.7222 0.7778
0.7222 0.8333
0.7222 0.8889
0.7222 0.9444
0.7222 1
0.7222 0.6111
0.7778 0.6111
0.7778 0.6667
0.7778 0.7222
0.7778 0.7778
0.7778 0.8333
0.7778 0.8889
0.7778 0.9444
0.7778 1
0.7778 0.5556
0.8333 0.5556
0.8333 0.6111
0.8333 0.6667
0.8333 0.7222
0.8333 0.7778
0.8333 0.8333
0.8333 0.8889
0.8333 0.9444
0.8333 1
0.8333 0.5
0.8889 0.5
0.8889 0.5556
0.8889 0.6111
0.8889 0.6667
0.8889 0.7222
0.8889 0.7778
0.8889 0.8333
0.8889 0.8889
0.8889 0.9444
0.8889 1
0.8889 0.4444
0.9444 0.4444
0.9444 0.5
0.9444 0.5556
0.9444 0.6111
0.9444 0.6667
0.9444 0.7222
0.9444 0.7778
0.9444 0.8333
0.9444 0.8889
0.9444 0.9444
1 0.4444
1 0.5
1 0.5556
1 0.6111
1 0.6667
1 0.7222
1 0.7778
1 0.8333
1 0.8889
Faces 134
Face verts 3 flags 0 mat 0
<0,0> <3,2> <1,1>
Face verts 3 flags 0 mat 0
<1,1> <3,2> <2,3>
Face verts 3 flags 0 mat 0
<3,2> <5,4> <2,3>
Face verts 3 flags 0 mat 0
<2,3> <5,4> <4,5>
Face verts 3 flags 0 mat 0
<6,6> <1,1> <7,7>
Face verts 3 flags 0 mat 0
<7,7> <1,1> <8,8>
Face verts 3 flags 0 mat 0
<1,1> <2,3> <8,8>
Face verts 3 flags 0 mat 0
<8,8> <2,3> <9,9>
Face verts 3 flags 0 mat 0
<2,3> <4,5> <9,9>
Face verts 3 flags 0 mat 0
<9,9> <4,5> <10,10>
Face verts 3 flags 0 mat 0
<11,11> <7,7> <12,12>
Face verts 3 flags 0 mat 0
<12,12> <7,7> <13,13>
Face verts 3 flags 0 mat 0
<7,7> <8,8> <13,13>
Face verts 3 flags 0 mat 0
<13,13> <8,8> <14,14>
Face verts 3 flags 0 mat 0
<8,8> <9,9> <14,14>
Face verts 3 flags 0 mat 0
<14,14> <9,9> <15,15>
Face verts 3 flags 0 mat 0
<9,9> <10,10> <15,15>
Face verts 3 flags 0 mat 0
<15,15> <10,10> <16,16>
Face verts 3 flags 0 mat 0
<17,17> <12,12> <18,18>
Face verts 3 flags 0 mat 0
<18,18> <12,12> <19,19>
Face verts 3 flags 0 mat 0
<12,12> <13,13> <19,19>
Face verts 3 flags 0 mat 0
<19,19> <13,13> <20,20>
Face verts 3 flags 0 mat 0
<13,13> <14,14> <20,20>
Face verts 3 flags 0 mat 0
<20,20> <14,14> <21,21>
Face verts 3 flags 0 mat 0
<14,14> <15,15> <21,21>
Face verts 3 flags 0 mat 0
<21,21> <15,15> <22,22>
Face verts 3 flags 0 mat 0
<15,15> <16,16> <22,22>
Face verts 3 flags 0 mat 0
<22,22> <16,16> <23,23>
Face verts 3 flags 0 mat 0
<24,24> <18,18> <25,25>
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
<20,20> <21,21> <28,28>
Face verts 3 flags 0 mat 0
<28,28> <21,21> <29,29>
Face verts 3 flags 0 mat 0
<21,21> <22,22> <29,29>
Face verts 3 flags 0 mat 0
<29,29> <22,22> <30,30>
Face verts 3 flags 0 mat 0
<22,22> <23,23> <30,30>
Face verts 3 flags 0 mat 0
<30,30> <23,23> <31,31>
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
<39,39> <32,32> <40,40>
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
<34,34> <44,44> <43,43>
Face verts 3 flags 0 mat 0
<34,34> <35,35> <44,44>
Face verts 3 flags 0 mat 0
<35,35> <36,36> <44,44>
Face verts 3 flags 0 mat 0
<44,44> <36,36> <45,45>
Face verts 3 flags 0 mat 0
<36,36> <46,46> <45,45>
Face verts 3 flags 0 mat 0
<36,36> <37,37> <46,46>
Face verts 3 flags 0 mat 0
<37,37> <38,38> <46,46>
Face verts 3 flags 0 mat 0
<46,46> <38,38> <47,47>
Face verts 3 flags 0 mat 0
<48,48> <40,40> <49,49>
Face verts 3 flags 0 mat 0
<49,49> <40,40> <50,50>
Face verts 3 flags 0 mat 0
<40,40> <41,41> <50,50>
Face verts 3 flags 0 mat 0
<50,50> <41,41> <51,51>
Face verts 3 flags 0 mat 0
<41,41> <42,42> <51,51>
Face verts 3 flags 0 mat 0
<51,51> <42,42> <52,52>
Face verts 3 flags 0 mat 0
<42,42> <43,43> <52,52>
Face verts 3 flags 0 mat 0
<52,52> <43,43> <53,53>
Face verts 3 flags 0 mat 0
<43,43> <54,54> <53,53>
Face verts 3 flags 0 mat 0
<43,43> <44,44> <54,54>
Face verts 3 flags 0 mat 0
<44,44> <55,55> <54,54>
Face verts 3 flags 0 mat 0
<44,44> <45,45> <55,55>
Face verts 3 flags 0 mat 0
<45,45> <46,46> <55,55>
Face verts 3 flags 0 mat 0
<55,55> <46,46> <56,56>
Face verts 3 flags 0 mat 0
<46,46> <47,47> <56,56>
Face verts 3 flags 0 mat 0
<56,56> <47,47> <57,57>
Face verts 3 flags 0 mat 0
<58,58> <49,49> <59,59>
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
<51,51> <52,52> <62,62>
Face verts 3 flags 0 mat 0
<62,62> <52,52> <63,63>
Face verts 3 flags 0 mat 0
<52,52> <64,64> <63,63>
Face verts 3 flags 0 mat 0
<52,52> <53,53> <64,64>
Face verts 3 flags 0 mat 0
<53,53> <65,65> <64,64>
Face verts 3 flags 0 mat 0
<53,53> <54,54> <65,65>
Face verts 3 flags 0 mat 0
<54,54> <55,55> <65,65>
Face verts 3 flags 0 mat 0
<65,65> <55,55> <66,66>
Face verts 3 flags 0 mat 0
<55,55> <56,56> <66,66>
Face verts 3 flags 0 mat 0
<66,66> <56,56> <67,67>
Face verts 3 flags 0 mat 0
<56,56> <57,57> <67,67>
Face verts 3 flags 0 mat 0
<67,67> <57,57> <68,68>
Face verts 3 flags 0 mat 0
<69,69> <59,59> <70,70>
Face verts 3 flags 0 mat 0
<70,70> <59,59> <71,71>
Face verts 3 flags 0 mat 0
<59,59> <60,60> <71,71>
Face verts 3 flags 0 mat 0
<71,71> <60,60> <72,72>
Face verts 3 flags 0 mat 0
<60,60> <61,61> <72,72>
Face verts 3 flags 0 mat 0
<72,72> <61,61> <73,73>
Face verts 3 flags 0 mat 0
<61,61> <74,74> <73,73>
Face verts 3 flags 0 mat 0
<61,61> <62,62> <74,74>
Face verts 3 flags 0 mat 0
<62,62> <75,75> <74,74>
Face verts 3 flags 0 mat 0
<62,62> <63,63> <75,75>
Face verts 3 flags 0 mat 0
<63,63> <76,76> <75,75>
Face verts 3 flags 0 mat 0
<63,63> <64,64> <76,76>
Face verts 3 flags 0 mat 0
<64,64> <65,65> <76,76>
Face verts 3 flags 0 mat 0
<76,76> <65,65> <77,77>
Face verts 3 flags 0 mat 0
<65,65> <66,66> <77,77>
Face verts 3 flags 0 mat 0
<77,77> <66,66> <78,78>
Face verts 3 flags 0 mat 0
<66,66> <67,67> <78,78>
Face verts 3 flags 0 mat 0
<78,78> <67,67> <79,79>
Face verts 3 flags 0 mat 0
<70,70> <71,71> <80,80>
Face verts 3 flags 0 mat 0
<80,80> <71,71> <81,81>
Face verts 3 flags 0 mat 0
<71,71> <72,72> <81,81>
Face verts 3 flags 0 mat 0
<81,81> <72,72> <82,82>
Face verts 3 flags 0 mat 0
<72,72> <73,73> <82,82>
Face verts 3 flags 0 mat 0
<82,82> <73,73> <83,83>
Face verts 3 flags 0 mat 0
<73,73> <74,74> <83,83>
Face verts 3 flags 0 mat 0
<83,83> <74,74> <84,84>
Face verts 3 flags 0 mat 0
<74,74> <85,85> <84,84>
Face verts 3 flags 0 mat 0
<74,74> <75,75> <85,85>
Face verts 3 flags 0 mat 0
<75,75> <86,86> <85,85>
Face verts 3 flags 0 mat 0
<75,75> <76,76> <86,86>
Face verts 3 flags 0 mat 0
<76,76> <77,77> <86,86>
Face verts 3 flags 0 mat 0
<86,86> <77,77> <87,87>
Face verts 3 flags 0 mat 0
<77,77> <78,78> <87,87>
Face verts 3 flags 0 mat 0
<87,87> <78,78> <88,88>
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
