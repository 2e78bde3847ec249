# water: made by art/build.sh, do not edit
Name water
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 82
8.5 0 0
-4 4 0
-3 4 0
-2 4 0
-1 4 0
0 4 0
1 4 0
2 4 0
3 4 0
4 4 0
-4 3 0
-3 3 0
-2 3 0
-1 3 0
0 3 0
1 3 0
2 3 0
3 3 0
4 3 0
-4 2 0
-3 2 0
-2 2 0
-1 2 0
0 2 0
1 2 0
2 2 0
3 2 0
4 2 0
-4 1 0
-3 1 0
-2 1 0
-1 1 0
0 1 0
1 1 0
2 1 0
3 1 0
4 1 0
-4 0 0
-3 0 0
-2 0 0
-1 0 0
0 0 0
1 0 0
2 0 0
3 0 0
4 0 0
-4 -1 0
-3 -1 0
-2 -1 0
-1 -1 0
0 -1 0
1 -1 0
2 -1 0
3 -1 0
4 -1 0
-4 -2 0
-3 -2 0
-2 -2 0
-1 -2 0
0 -2 0
1 -2 0
2 -2 0
3 -2 0
4 -2 0
-4 -3 0
-3 -3 0
-2 -3 0
-1 -3 0
0 -3 0
1 -3 0
2 -3 0
3 -3 0
4 -3 0
-4 -4 0
-3 -4 0
-2 -4 0
-1 -4 0
0 -4 0
1 -4 0
2 -4 0
3 -4 0
4 -4 0
Texture Vertices 81
0 1
0.125 1
0.125 0.875
0 0.875
0 0.75
0.125 0.75
0.125 0.625
0 0.625
0 0.5
0.125 0.5
0.125 0.375
0 0.375
0 0.25
0.125 0.25
0.125 0.125
0 0.125
0 0
0.125 0
0.25 1
0.25 0.875
0.25 0.75
0.25 0.625
0.25 0.5
0.25 0.375
0.25 0.25
0.25 0.125
0.25 0
0.375 1
0.375 0.875
0.375 0.75
0.375 0.625
0.375 0.5
0.375 0.375
0.375 0.25
0.375 0.125
0.375 0
0.5 1
0.5 0.875
0.5 0.75
0.5 0.625
0.5 0.5
0.5 0.375
0.5 0.25
0.5 0.125
0.5 0
0.625 1
0.625 0.875
0.625 0.75
0.625 0.625
0.625 0.5
0.625 0.375
0.625 0.25
0.625 0.125
0.625 0
0.75 1
0.75 0.875
0.75 0.75
0.75 0.625
0.75 0.5
0.75 0.375
0.75 0.25
0.75 0.125
0.75 0
0.875 1
0.875 0.875
0.875 0.75
0.875 0.625
0.875 0.5
0.875 0.375
0.875 0.25
0.875 0.125
0.875 0
1 1
1 0.875
1 0.75
1 0.625
1 0.5
1 0.375
1 0.25
1 0.125
1 0
Faces 128
Face verts 3 flags 0 mat 0
<1,0> <11,2> <10,1>
Face verts 3 flags 0 mat 0
<1,0> <2,3> <11,2>
Face verts 3 flags 0 mat 0
<2,3> <3,4> <11,2>
Face verts 3 flags 0 mat 0
<11,2> <3,4> <12,5>
Face verts 3 flags 0 mat 0
<3,4> <13,6> <12,5>
Face verts 3 flags 0 mat 0
<3,4> <4,7> <13,6>
Face verts 3 flags 0 mat 0
<4,7> <5,8> <13,6>
Face verts 3 flags 0 mat 0
<13,6> <5,8> <14,9>
Face verts 3 flags 0 mat 0
<5,8> <15,10> <14,9>
Face verts 3 flags 0 mat 0
<5,8> <6,11> <15,10>
Face verts 3 flags 0 mat 0
<6,11> <7,12> <15,10>
Face verts 3 flags 0 mat 0
<15,10> <7,12> <16,13>
Face verts 3 flags 0 mat 0
<7,12> <17,14> <16,13>
Face verts 3 flags 0 mat 0
<7,12> <8,15> <17,14>
Face verts 3 flags 0 mat 0
<8,15> <9,16> <17,14>
Face verts 3 flags 0 mat 0
<17,14> <9,16> <18,17>
Face verts 3 flags 0 mat 0
<10,1> <11,2> <19,18>
Face verts 3 flags 0 mat 0
<19,18> <11,2> <20,19>
Face verts 3 flags 0 mat 0
<11,2> <21,20> <20,19>
Face verts 3 flags 0 mat 0
<11,2> <12,5> <21,20>
Face verts 3 flags 0 mat 0
<12,5> <13,6> <21,20>
Face verts 3 flags 0 mat 0
<21,20> <13,6> <22,21>
Face verts 3 flags 0 mat 0
<13,6> <23,22> <22,21>
Face verts 3 flags 0 mat 0
<13,6> <14,9> <23,22>
Face verts 3 flags 0 mat 0
<14,9> <15,10> <23,22>
Face verts 3 flags 0 mat 0
<23,22> <15,10> <24,23>
Face verts 3 flags 0 mat 0
<15,10> <25,24> <24,23>
Face verts 3 flags 0 mat 0
<15,10> <16,13> <25,24>
Face verts 3 flags 0 mat 0
<16,13> <17,14> <25,24>
Face verts 3 flags 0 mat 0
<25,24> <17,14> <26,25>
Face verts 3 flags 0 mat 0
<17,14> <27,26> <26,25>
Face verts 3 flags 0 mat 0
<17,14> <18,17> <27,26>
Face verts 3 flags 0 mat 0
<19,18> <29,28> <28,27>
Face verts 3 flags 0 mat 0
<19,18> <20,19> <29,28>
Face verts 3 flags 0 mat 0
<20,19> <21,20> <29,28>
Face verts 3 flags 0 mat 0
<29,28> <21,20> <30,29>
Face verts 3 flags 0 mat 0
<21,20> <31,30> <30,29>
Face verts 3 flags 0 mat 0
<21,20> <22,21> <31,30>
Face verts 3 flags 0 mat 0
<22,21> <23,22> <31,30>
Face verts 3 flags 0 mat 0
<31,30> <23,22> <32,31>
Face verts 3 flags 0 mat 0
<23,22> <33,32> <32,31>
Face verts 3 flags 0 mat 0
<23,22> <24,23> <33,32>
Face verts 3 flags 0 mat 0
<24,23> <25,24> <33,32>
Face verts 3 flags 0 mat 0
<33,32> <25,24> <34,33>
Face verts 3 flags 0 mat 0
<25,24> <35,34> <34,33>
Face verts 3 flags 0 mat 0
<25,24> <26,25> <35,34>
Face verts 3 flags 0 mat 0
<26,25> <27,26> <35,34>
Face verts 3 flags 0 mat 0
<35,34> <27,26> <36,35>
Face verts 3 flags 0 mat 0
<28,27> <29,28> <37,36>
Face verts 3 flags 0 mat 0
<37,36> <29,28> <38,37>
Face verts 3 flags 0 mat 0
<29,28> <39,38> <38,37>
Face verts 3 flags 0 mat 0
<29,28> <30,29> <39,38>
Face verts 3 flags 0 mat 0
<30,29> <31,30> <39,38>
Face verts 3 flags 0 mat 0
<39,38> <31,30> <40,39>
Face verts 3 flags 0 mat 0
<31,30> <41,40> <40,39>
Face verts 3 flags 0 mat 0
<31,30> <32,31> <41,40>
Face verts 3 flags 0 mat 0
<32,31> <33,32> <41,40>
Face verts 3 flags 0 mat 0
<41,40> <33,32> <42,41>
Face verts 3 flags 0 mat 0
<33,32> <43,42> <42,41>
Face verts 3 flags 0 mat 0
<33,32> <34,33> <43,42>
Face verts 3 flags 0 mat 0
<34,33> <35,34> <43,42>
Face verts 3 flags 0 mat 0
<43,42> <35,34> <44,43>
Face verts 3 flags 0 mat 0
<35,34> <45,44> <44,43>
Face verts 3 flags 0 mat 0
<35,34> <36,35> <45,44>
Face verts 3 flags 0 mat 0
<37,36> <47,46> <46,45>
Face verts 3 flags 0 mat 0
<37,36> <38,37> <47,46>
Face verts 3 flags 0 mat 0
<38,37> <39,38> <47,46>
Face verts 3 flags 0 mat 0
<47,46> <39,38> <48,47>
Face verts 3 flags 0 mat 0
<39,38> <49,48> <48,47>
Face verts 3 flags 0 mat 0
<39,38> <40,39> <49,48>
Face verts 3 flags 0 mat 0
<40,39> <41,40> <49,48>
Face verts 3 flags 0 mat 0
<49,48> <41,40> <50,49>
Face verts 3 flags 0 mat 0
<41,40> <51,50> <50,49>
Face verts 3 flags 0 mat 0
<41,40> <42,41> <51,50>
Face verts 3 flags 0 mat 0
<42,41> <43,42> <51,50>
Face verts 3 flags 0 mat 0
<51,50> <43,42> <52,51>
Face verts 3 flags 0 mat 0
<43,42> <53,52> <52,51>
Face verts 3 flags 0 mat 0
<43,42> <44,43> <53,52>
Face verts 3 flags 0 mat 0
<44,43> <45,44> <53,52>
Face verts 3 flags 0 mat 0
<53,52> <45,44> <54,53>
Face verts 3 flags 0 mat 0
<46,45> <47,46> <55,54>
Face verts 3 flags 0 mat 0
<55,54> <47,46> <56,55>
Face verts 3 flags 0 mat 0
<47,46> <57,56> <56,55>
Face verts 3 flags 0 mat 0
<47,46> <48,47> <57,56>
Face verts 3 flags 0 mat 0
<48,47> <49,48> <57,56>
Face verts 3 flags 0 mat 0
<57,56> <49,48> <58,57>
Face verts 3 flags 0 mat 0
<49,48> <59,58> <58,57>
Face verts 3 flags 0 mat 0
<49,48> <50,49> <59,58>
Face verts 3 flags 0 mat 0
<50,49> <51,50> <59,58>
Face verts 3 flags 0 mat 0
<59,58> <51,50> <60,59>
Face verts 3 flags 0 mat 0
<51,50> <61,60> <60,59>
Face verts 3 flags 0 mat 0
<51,50> <52,51> <61,60>
Face verts 3 flags 0 mat 0
<52,51> <53,52> <61,60>
Face verts 3 flags 0 mat 0
<61,60> <53,52> <62,61>
Face verts 3 flags 0 mat 0
<53,52> <63,62> <62,61>
Face verts 3 flags 0 mat 0
<53,52> <54,53> <63,62>
Face verts 3 flags 0 mat 0
<55,54> <65,64> <64,63>
Face verts 3 flags 0 mat 0
<55,54> <56,55> <65,64>
Face verts 3 flags 0 mat 0
<56,55> <57,56> <65,64>
Face verts 3 flags 0 mat 0
<65,64> <57,56> <66,65>
Face verts 3 flags 0 mat 0
<57,56> <67,66> <66,65>
Face verts 3 flags 0 mat 0
<57,56> <58,57> <67,66>
Face verts 3 flags 0 mat 0
<58,57> <59,58> <67,66>
Face verts 3 flags 0 mat 0
<67,66> <59,58> <68,67>
Face verts 3 flags 0 mat 0
<59,58> <69,68> <68,67>
Face verts 3 flags 0 mat 0
<59,58> <60,59> <69,68>
Face verts 3 flags 0 mat 0
<60,59> <61,60> <69,68>
Face verts 3 flags 0 mat 0
<69,68> <61,60> <70,69>
Face verts 3 flags 0 mat 0
<61,60> <71,70> <70,69>
Face verts 3 flags 0 mat 0
<61,60> <62,61> <71,70>
Face verts 3 flags 0 mat 0
<62,61> <63,62> <71,70>
Face verts 3 flags 0 mat 0
<71,70> <63,62> <72,71>
Face verts 3 flags 0 mat 0
<64,63> <65,64> <73,72>
Face verts 3 flags 0 mat 0
<73,72> <65,64> <74,73>
Face verts 3 flags 0 mat 0
<65,64> <75,74> <74,73>
Face verts 3 flags 0 mat 0
<65,64> <66,65> <75,74>
Face verts 3 flags 0 mat 0
<66,65> <67,66> <75,74>
Face verts 3 flags 0 mat 0
<75,74> <67,66> <76,75>
Face verts 3 flags 0 mat 0
<67,66> <77,76> <76,75>
Face verts 3 flags 0 mat 0
<67,66> <68,67> <77,76>
Face verts 3 flags 0 mat 0
<68,67> <69,68> <77,76>
Face verts 3 flags 0 mat 0
<77,76> <69,68> <78,77>
Face verts 3 flags 0 mat 0
<69,68> <79,78> <78,77>
Face verts 3 flags 0 mat 0
<69,68> <70,69> <79,78>
Face verts 3 flags 0 mat 0
<70,69> <71,70> <79,78>
Face verts 3 flags 0 mat 0
<79,78> <71,70> <80,79>
Face verts 3 flags 0 mat 0
<71,70> <81,80> <80,79>
Face verts 3 flags 0 mat 0
<71,70> <72,71> <81,80>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\sea.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "plastic"
