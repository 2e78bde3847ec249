# hour-stone: made by art/build.sh, do not edit
Name hour-stone
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 49
0.4267 0.1181 -0.3
0.3879 0.1001 0.4
0.3147 0.1051 1.3
0.2899 0.0882 2.2
0.2429 0.0764 3
0.1269 0.5703 -0.3
0.1277 0.5204 0.4
0.1068 0.4533 1.3
0.1025 0.4098 2.2
0.0747 0.3837 3
-0.2666 0.4104 -0.3
-0.2294 0.3891 0.4
-0.2117 0.3935 1.3
-0.1837 0.3246 2.2
-0.1698 0.2587 3
-0.4011 -0.1141 -0.3
-0.3386 -0.1137 0.4
-0.3275 -0.0928 1.3
-0.3118 -0.0796 2.2
-0.2506 -0.0732 3
-0.1279 -0.5951 -0.3
-0.1253 -0.4942 0.4
-0.1201 -0.5009 1.3
-0.0926 -0.3991 2.2
-0.0763 -0.3529 3
0.2892 -0.4247 -0.3
0.2472 -0.4359 0.4
0.2525 -0.3563 1.3
0.2136 -0.296 2.2
0.1592 -0.2853 3
0.3632 0.0706 2.96
0.3927 0.0763 3.12
0.0001 0 3.66
0.1205 0.3498 2.96
0.1302 0.3782 3.12
0 0.0001 3.66
-0.2427 0.2792 2.96
-0.2624 0.3019 3.12
-0.0001 0.0001 3.66
-0.3632 -0.0706 2.96
-0.3927 -0.0763 3.12
-0.0001 0 3.66
-0.1205 -0.3498 2.96
-0.1302 -0.3782 3.12
0 -0.0001 3.66
0.2427 -0.2792 2.96
0.2624 -0.3019 3.12
0.0001 -0.0001 3.66
0 0 5.1972
Texture Vertices 3
0.7619 0.746
0.254 0.746
0.254 0.2381
Faces 72
Face verts 3 flags 0 mat 0
<0,0> <6,0> <5,0>
Face verts 3 flags 0 mat 0
<0,0> <1,0> <6,0>
Face verts 3 flags 0 mat 0
<1,1> <2,1> <6,1>
Face verts 3 flags 0 mat 0
<6,1> <2,1> <7,1>
Face verts 3 flags 0 mat 0
<2,0> <8,0> <7,0>
Face verts 3 flags 0 mat 0
<2,0> <3,0> <8,0>
Face verts 3 flags 0 mat 0
<3,1> <4,1> <8,1>
Face verts 3 flags 0 mat 0
<8,1> <4,1> <9,1>
Face verts 3 flags 0 mat 0
<5,1> <6,1> <10,1>
Face verts 3 flags 0 mat 0
<10,1> <6,1> <11,1>
Face verts 3 flags 0 mat 0
<6,0> <12,0> <11,0>
Face verts 3 flags 0 mat 0
<6,0> <7,0> <12,0>
Face verts 3 flags 0 mat 0
<7,1> <8,1> <12,1>
Face verts 3 flags 0 mat 0
<12,1> <8,1> <13,1>
Face verts 3 flags 0 mat 0
<8,0> <14,0> <13,0>
Face verts 3 flags 0 mat 0
<8,0> <9,0> <14,0>
Face verts 3 flags 0 mat 0
<10,0> <16,0> <15,0>
Face verts 3 flags 0 mat 0
<10,0> <11,0> <16,0>
Face verts 3 flags 0 mat 0
<11,1> <12,1> <16,1>
Face verts 3 flags 0 mat 0
<16,1> <12,1> <17,1>
Face verts 3 flags 0 mat 0
<12,0> <18,0> <17,0>
Face verts 3 flags 0 mat 0
<12,0> <13,0> <18,0>
Face verts 3 flags 0 mat 0
<13,1> <14,1> <18,1>
Face verts 3 flags 0 mat 0
<18,1> <14,1> <19,1>
Face verts 3 flags 0 mat 0
<15,1> <16,1> <20,1>
Face verts 3 flags 0 mat 0
<20,1> <16,1> <21,1>
Face verts 3 flags 0 mat 0
<16,0> <22,0> <21,0>
Face verts 3 flags 0 mat 0
<16,0> <17,0> <22,0>
Face verts 3 flags 0 mat 0
<17,1> <18,1> <22,1>
Face verts 3 flags 0 mat 0
<22,1> <18,1> <23,1>
Face verts 3 flags 0 mat 0
<18,0> <24,0> <23,0>
Face verts 3 flags 0 mat 0
<18,0> <19,0> <24,0>
Face verts 3 flags 0 mat 0
<20,0> <26,0> <25,0>
Face verts 3 flags 0 mat 0
<20,0> <21,0> <26,0>
Face verts 3 flags 0 mat 0
<21,1> <22,1> <26,1>
Face verts 3 flags 0 mat 0
<26,1> <22,1> <27,1>
Face verts 3 flags 0 mat 0
<22,0> <28,0> <27,0>
Face verts 3 flags 0 mat 0
<22,0> <23,0> <28,0>
Face verts 3 flags 0 mat 0
<23,1> <24,1> <28,1>
Face verts 3 flags 0 mat 0
<28,1> <24,1> <29,1>
Face verts 3 flags 0 mat 0
<25,1> <26,1> <0,1>
Face verts 3 flags 0 mat 0
<0,1> <26,1> <1,1>
Face verts 3 flags 0 mat 0
<26,0> <2,0> <1,0>
Face verts 3 flags 0 mat 0
<26,0> <27,0> <2,0>
Face verts 3 flags 0 mat 0
<27,1> <28,1> <2,1>
Face verts 3 flags 0 mat 0
<2,1> <28,1> <3,1>
Face verts 3 flags 0 mat 0
<28,0> <4,0> <3,0>
Face verts 3 flags 0 mat 0
<28,0> <29,0> <4,0>
Face verts 3 flags 0 mat 0
<30,2> <34,2> <33,2>
Face verts 3 flags 0 mat 0
<30,2> <31,2> <34,2>
Face verts 3 flags 0 mat 0
<31,2> <32,2> <34,2>
Face verts 3 flags 0 mat 0
<34,2> <32,2> <35,2>
Face verts 3 flags 0 mat 0
<33,2> <34,2> <36,2>
Face verts 3 flags 0 mat 0
<36,2> <34,2> <37,2>
Face verts 3 flags 0 mat 0
<34,2> <38,2> <37,2>
Face verts 3 flags 0 mat 0
<34,2> <35,2> <38,2>
Face verts 3 flags 0 mat 0
<36,2> <40,2> <39,2>
Face verts 3 flags 0 mat 0
<36,2> <37,2> <40,2>
Face verts 3 flags 0 mat 0
<37,2> <38,2> <40,2>
Face verts 3 flags 0 mat 0
<40,2> <38,2> <41,2>
Face verts 3 flags 0 mat 0
<39,2> <40,2> <42,2>
Face verts 3 flags 0 mat 0
<42,2> <40,2> <43,2>
Face verts 3 flags 0 mat 0
<40,2> <44,2> <43,2>
Face verts 3 flags 0 mat 0
<40,2> <41,2> <44,2>
Face verts 3 flags 0 mat 0
<42,2> <46,2> <45,2>
Face verts 3 flags 0 mat 0
<42,2> <43,2> <46,2>
Face verts 3 flags 0 mat 0
<43,2> <44,2> <46,2>
Face verts 3 flags 0 mat 0
<46,2> <44,2> <47,2>
Face verts 3 flags 0 mat 0
<45,2> <46,2> <30,2>
Face verts 3 flags 0 mat 0
<30,2> <46,2> <31,2>
Face verts 3 flags 0 mat 0
<46,2> <32,2> <31,2>
Face verts 3 flags 0 mat 0
<46,2> <47,2> <32,2>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\hour-stone.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "matte"
