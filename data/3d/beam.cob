# beam: made by art/build.sh, do not edit
Name beam
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 73
14.6259 13.1094 11.19
-7.4453 19.5619 16.4688
-7.4453 19.5619 16.6488
14.6259 13.1094 11.31
14.6232 13.0894 11.2003
-7.6065 18.3624 17.0859
-7.6065 18.3624 17.2659
14.6232 13.0894 11.3203
14.6201 13.1036 11.1702
-7.7948 19.216 15.2839
-7.7948 19.216 15.4639
14.6201 13.1036 11.2902
14.632 13.1131 11.2084
-7.0824 19.7879 17.5732
-7.0824 19.7879 17.7532
14.632 13.1131 11.3284
14.6166 13.0757 11.1854
-8.0029 17.5423 16.192
-8.0029 17.5423 16.372
14.6166 13.0757 11.3054
14.6275 13.1255 11.1742
-7.3479 20.5329 15.5228
-7.3479 20.5329 15.7028
14.6275 13.1255 11.2942
14.6295 13.0909 11.2204
-7.2281 18.4543 18.2925
-7.2281 18.4543 18.4725
14.6295 13.0909 11.3404
14.6141 13.0869 11.1594
-8.1543 18.212 14.6358
-8.1543 18.212 14.8158
14.6141 13.0869 11.2794
14.6367 13.1324 11.2024
-6.7982 20.9428 17.2142
-6.7982 20.9428 17.3942
14.6367 13.1324 11.3224
15.3741 12.8906 11.19
37.4453 6.4381 16.4688
37.4453 6.4381 16.6488
15.3741 12.8906 11.31
15.3768 12.9106 11.2003
37.6065 7.6376 17.0859
37.6065 7.6376 17.2659
15.3768 12.9106 11.3203
15.3799 12.8964 11.1702
37.7948 6.784 15.2839
37.7948 6.784 15.4639
15.3799 12.8964 11.2902
15.368 12.8869 11.2084
37.0824 6.2121 17.5732
37.0824 6.2121 17.7532
15.368 12.8869 11.3284
15.3834 12.9243 11.1854
38.0029 8.4577 16.192
38.0029 8.4577 16.372
15.3834 12.9243 11.3054
15.3725 12.8745 11.1742
37.3479 5.4671 15.5228
37.3479 5.4671 15.7028
15.3725 12.8745 11.2942
15.3705 12.9091 11.2204
37.2281 7.5457 18.2925
37.2281 7.5457 18.4725
15.3705 12.9091 11.3404
15.3859 12.9131 11.1594
38.1543 7.788 14.6358
38.1543 7.788 14.8158
15.3859 12.9131 11.2794
15.3633 12.8676 11.2024
36.7982 5.0572 17.2142
36.7982 5.0572 17.3942
15.3633 12.8676 11.3224
0 0 59.9788
Texture Vertices 1
0 0
Faces 72
Face verts 3 flags 0 mat 0
<0,0> <2,0> <1,0>
Face verts 3 flags 0 mat 0
<0,0> <3,0> <2,0>
Face verts 3 flags 0 mat 0
<0,0> <1,0> <2,0>
Face verts 3 flags 0 mat 0
<0,0> <2,0> <3,0>
Face verts 3 flags 0 mat 0
<4,0> <6,0> <5,0>
Face verts 3 flags 0 mat 0
<4,0> <7,0> <6,0>
Face verts 3 flags 0 mat 0
<4,0> <5,0> <6,0>
Face verts 3 flags 0 mat 0
<4,0> <6,0> <7,0>
Face verts 3 flags 0 mat 0
<8,0> <10,0> <9,0>
Face verts 3 flags 0 mat 0
<8,0> <11,0> <10,0>
Face verts 3 flags 0 mat 0
<8,0> <9,0> <10,0>
Face verts 3 flags 0 mat 0
<8,0> <10,0> <11,0>
Face verts 3 flags 0 mat 0
<12,0> <14,0> <13,0>
Face verts 3 flags 0 mat 0
<12,0> <15,0> <14,0>
Face verts 3 flags 0 mat 0
<12,0> <13,0> <14,0>
Face verts 3 flags 0 mat 0
<12,0> <14,0> <15,0>
Face verts 3 flags 0 mat 0
<16,0> <18,0> <17,0>
Face verts 3 flags 0 mat 0
<16,0> <19,0> <18,0>
Face verts 3 flags 0 mat 0
<16,0> <17,0> <18,0>
Face verts 3 flags 0 mat 0
<16,0> <18,0> <19,0>
Face verts 3 flags 0 mat 0
<20,0> <22,0> <21,0>
Face verts 3 flags 0 mat 0
<20,0> <23,0> <22,0>
Face verts 3 flags 0 mat 0
<20,0> <21,0> <22,0>
Face verts 3 flags 0 mat 0
<20,0> <22,0> <23,0>
Face verts 3 flags 0 mat 0
<24,0> <26,0> <25,0>
Face verts 3 flags 0 mat 0
<24,0> <27,0> <26,0>
Face verts 3 flags 0 mat 0
<24,0> <25,0> <26,0>
Face verts 3 flags 0 mat 0
<24,0> <26,0> <27,0>
Face verts 3 flags 0 mat 0
<28,0> <30,0> <29,0>
Face verts 3 flags 0 mat 0
<28,0> <31,0> <30,0>
Face verts 3 flags 0 mat 0
<28,0> <29,0> <30,0>
Face verts 3 flags 0 mat 0
<28,0> <30,0> <31,0>
Face verts 3 flags 0 mat 0
<32,0> <34,0> <33,0>
Face verts 3 flags 0 mat 0
<32,0> <35,0> <34,0>
Face verts 3 flags 0 mat 0
<32,0> <33,0> <34,0>
Face verts 3 flags 0 mat 0
<32,0> <34,0> <35,0>
Face verts 3 flags 0 mat 0
<36,0> <38,0> <37,0>
Face verts 3 flags 0 mat 0
<36,0> <39,0> <38,0>
Face verts 3 flags 0 mat 0
<36,0> <37,0> <38,0>
Face verts 3 flags 0 mat 0
<36,0> <38,0> <39,0>
Face verts 3 flags 0 mat 0
<40,0> <42,0> <41,0>
Face verts 3 flags 0 mat 0
<40,0> <43,0> <42,0>
Face verts 3 flags 0 mat 0
<40,0> <41,0> <42,0>
Face verts 3 flags 0 mat 0
<40,0> <42,0> <43,0>
Face verts 3 flags 0 mat 0
<44,0> <46,0> <45,0>
Face verts 3 flags 0 mat 0
<44,0> <47,0> <46,0>
Face verts 3 flags 0 mat 0
<44,0> <45,0> <46,0>
Face verts 3 flags 0 mat 0
<44,0> <46,0> <47,0>
Face verts 3 flags 0 mat 0
<48,0> <50,0> <49,0>
Face verts 3 flags 0 mat 0
<48,0> <51,0> <50,0>
Face verts 3 flags 0 mat 0
<48,0> <49,0> <50,0>
Face verts 3 flags 0 mat 0
<48,0> <50,0> <51,0>
Face verts 3 flags 0 mat 0
<52,0> <54,0> <53,0>
Face verts 3 flags 0 mat 0
<52,0> <55,0> <54,0>
Face verts 3 flags 0 mat 0
<52,0> <53,0> <54,0>
Face verts 3 flags 0 mat 0
<52,0> <54,0> <55,0>
Face verts 3 flags 0 mat 0
<56,0> <58,0> <57,0>
Face verts 3 flags 0 mat 0
<56,0> <59,0> <58,0>
Face verts 3 flags 0 mat 0
<56,0> <57,0> <58,0>
Face verts 3 flags 0 mat 0
<56,0> <58,0> <59,0>
Face verts 3 flags 0 mat 0
<60,0> <62,0> <61,0>
Face verts 3 flags 0 mat 0
<60,0> <63,0> <62,0>
Face verts 3 flags 0 mat 0
<60,0> <61,0> <62,0>
Face verts 3 flags 0 mat 0
<60,0> <62,0> <63,0>
Face verts 3 flags 0 mat 0
<64,0> <66,0> <65,0>
Face verts 3 flags 0 mat 0
<64,0> <67,0> <66,0>
Face verts 3 flags 0 mat 0
<64,0> <65,0> <66,0>
Face verts 3 flags 0 mat 0
<64,0> <66,0> <67,0>
Face verts 3 flags 0 mat 0
<68,0> <70,0> <69,0>
Face verts 3 flags 0 mat 0
<68,0> <71,0> <70,0>
Face verts 3 flags 0 mat 0
<68,0> <69,0> <70,0>
Face verts 3 flags 0 mat 0
<68,0> <70,0> <71,0>
mat# 0
rgb 1,0.8951,0.7225
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "filter"
colour: color (36, 36, 36)
Shader class: reflectance
Shader name: "constant"
