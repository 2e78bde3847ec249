# night-water: made by art/build.sh, do not edit
Name night-water
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 50
8.5 0 0
-4 4 0
-2.6667 4 0
-1.3333 4 0
0 4 0
1.3333 4 0
2.6667 4 0
4 4 0
-4 2.6667 0
-2.6667 2.6667 0
-1.3333 2.6667 0
0 2.6667 0
1.3333 2.6667 0
2.6667 2.6667 0
4 2.6667 0
-4 1.3333 0
-2.6667 1.3333 0
-1.3333 1.3333 0
0 1.3333 0
1.3333 1.3333 0
2.6667 1.3333 0
4 1.3333 0
-4 0 0
-2.6667 0 0
-1.3333 0 0
0 0 0
1.3333 0 0
2.6667 0 0
4 0 0
-4 -1.3333 0
-2.6667 -1.3333 0
-1.3333 -1.3333 0
0 -1.3333 0
1.3333 -1.3333 0
2.6667 -1.3333 0
4 -1.3333 0
-4 -2.6667 0
-2.6667 -2.6667 0
-1.3333 -2.6667 0
0 -2.6667 0
1.3333 -2.6667 0
2.6667 -2.6667 0
4 -2.6667 0
-4 -4 0
-2.6667 -4 0
-1.3333 -4 0
0 -4 0
1.3333 -4 0
2.6667 -4 0
4 -4 0
Texture Vertices 49
0 1
0.1667 1
0.1667 0.8333
0 0.8333
0 0.6667
0.1667 0.6667
0.1667 0.5
0 0.5
0 0.3333
0.1667 0.3333
0.1667 0.1667
0 0.1667
0 0
0.1667 0
0.3333 1
0.3333 0.8333
0.3333 0.6667
0.3333 0.5
0.3333 0.3333
0.3333 0.1667
0.3333 0
0.5 1
0.5 0.8333
0.5 0.6667
0.5 0.5
0.5 0.3333
0.5 0.1667
0.5 0
0.6667 1
0.6667 0.8333
0.6667 0.6667
0.6667 0.5
0.6667 0.3333
0.6667 0.1667
0.6667 0
0.8333 1
0.8333 0.8333
0.8333 0.6667
0.8333 0.5
0.8333 0.3333
0.8333 0.1667
0.8333 0
1 1
1 0.8333
1 0.6667
1 0.5
1 0.3333
1 0.1667
1 0
Faces 72
Face verts 3 flags 0 mat 0
<1,0> <9,2> <8,1>
Face verts 3 flags 0 mat 0
<1,0> <2,3> <9,2>
Face verts 3 flags 0 mat 0
<2,3> <3,4> <9,2>
Face verts 3 flags 0 mat 0
<9,2> <3,4> <10,5>
Face verts 3 flags 0 mat 0
<3,4> <11,6> <10,5>
Face verts 3 flags 0 mat 0
<3,4> <4,7> <11,6>
Face verts 3 flags 0 mat 0
<4,7> <5,8> <11,6>
Face verts 3 flags 0 mat 0
<11,6> <5,8> <12,9>
Face verts 3 flags 0 mat 0
<5,8> <13,10> <12,9>
Face verts 3 flags 0 mat 0
<5,8> <6,11> <13,10>
Face verts 3 flags 0 mat 0
<6,11> <7,12> <13,10>
Face verts 3 flags 0 mat 0
<13,10> <7,12> <14,13>
Face verts 3 flags 0 mat 0
<8,1> <9,2> <15,14>
Face verts 3 flags 0 mat 0
<15,14> <9,2> <16,15>
Face verts 3 flags 0 mat 0
<9,2> <17,16> <16,15>
Face verts 3 flags 0 mat 0
<9,2> <10,5> <17,16>
Face verts 3 flags 0 mat 0
<10,5> <11,6> <17,16>
Face verts 3 flags 0 mat 0
<17,16> <11,6> <18,17>
Face verts 3 flags 0 mat 0
<11,6> <19,18> <18,17>
Face verts 3 flags 0 mat 0
<11,6> <12,9> <19,18>
Face verts 3 flags 0 mat 0
<12,9> <13,10> <19,18>
Face verts 3 flags 0 mat 0
<19,18> <13,10> <20,19>
Face verts 3 flags 0 mat 0
<13,10> <21,20> <20,19>
Face verts 3 flags 0 mat 0
<13,10> <14,13> <21,20>
Face verts 3 flags 0 mat 0
<15,14> <23,22> <22,21>
Face verts 3 flags 0 mat 0
<15,14> <16,15> <23,22>
Face verts 3 flags 0 mat 0
<16,15> <17,16> <23,22>
Face verts 3 flags 0 mat 0
<23,22> <17,16> <24,23>
Face verts 3 flags 0 mat 0
<17,16> <25,24> <24,23>
Face verts 3 flags 0 mat 0
<17,16> <18,17> <25,24>
Face verts 3 flags 0 mat 0
<18,17> <19,18> <25,24>
Face verts 3 flags 0 mat 0
<25,24> <19,18> <26,25>
Face verts 3 flags 0 mat 0
<19,18> <27,26> <26,25>
Face verts 3 flags 0 mat 0
<19,18> <20,19> <27,26>
Face verts 3 flags 0 mat 0
<20,19> <21,20> <27,26>
Face verts 3 flags 0 mat 0
<27,26> <21,20> <28,27>
Face verts 3 flags 0 mat 0
<22,21> <23,22> <29,28>
Face verts 3 flags 0 mat 0
<29,28> <23,22> <30,29>
Face verts 3 flags 0 mat 0
<23,22> <31,30> <30,29>
Face verts 3 flags 0 mat 0
<23,22> <24,23> <31,30>
Face verts 3 flags 0 mat 0
<24,23> <25,24> <31,30>
Face verts 3 flags 0 mat 0
<31,30> <25,24> <32,31>
Face verts 3 flags 0 mat 0
<25,24> <33,32> <32,31>
Face verts 3 flags 0 mat 0
<25,24> <26,25> <33,32>
Face verts 3 flags 0 mat 0
<26,25> <27,26> <33,32>
Face verts 3 flags 0 mat 0
<33,32> <27,26> <34,33>
Face verts 3 flags 0 mat 0
<27,26> <35,34> <34,33>
Face verts 3 flags 0 mat 0
<27,26> <28,27> <35,34>
Face verts 3 flags 0 mat 0
<29,28> <37,36> <36,35>
Face verts 3 flags 0 mat 0
<29,28> <30,29> <37,36>
Face verts 3 flags 0 mat 0
<30,29> <31,30> <37,36>
Face verts 3 flags 0 mat 0
<37,36> <31,30> <38,37>
Face verts 3 flags 0 mat 0
<31,30> <39,38> <38,37>
Face verts 3 flags 0 mat 0
<31,30> <32,31> <39,38>
Face verts 3 flags 0 mat 0
<32,31> <33,32> <39,38>
Face verts 3 flags 0 mat 0
<39,38> <33,32> <40,39>
Face verts 3 flags 0 mat 0
<33,32> <41,40> <40,39>
Face verts 3 flags 0 mat 0
<33,32> <34,33> <41,40>
Face verts 3 flags 0 mat 0
<34,33> <35,34> <41,40>
Face verts 3 flags 0 mat 0
<41,40> <35,34> <42,41>
Face verts 3 flags 0 mat 0
<36,35> <37,36> <43,42>
Face verts 3 flags 0 mat 0
<43,42> <37,36> <44,43>
Face verts 3 flags 0 mat 0
<37,36> <45,44> <44,43>
Face verts 3 flags 0 mat 0
<37,36> <38,37> <45,44>
Face verts 3 flags 0 mat 0
<38,37> <39,38> <45,44>
Face verts 3 flags 0 mat 0
<45,44> <39,38> <46,45>
Face verts 3 flags 0 mat 0
<39,38> <47,46> <46,45>
Face verts 3 flags 0 mat 0
<39,38> <40,39> <47,46>
Face verts 3 flags 0 mat 0
<40,39> <41,40> <47,46>
Face verts 3 flags 0 mat 0
<47,46> <41,40> <48,47>
Face verts 3 flags 0 mat 0
<41,40> <49,48> <48,47>
Face verts 3 flags 0 mat 0
<41,40> <42,41> <49,48>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\sea-night.bmp"
Shader class: transparency
Shader name: "filter"
colour: color (146, 146, 146)
Shader class: reflectance
Shader name: "plastic"
