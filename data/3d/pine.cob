# pine: made by art/build.sh, do not edit
Name pine
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 222
0 0.2998 -0.412
0.2341 0.1863 -0.4215
0.292 -0.0674 -0.4148
0.1299 -0.2704 -0.397
-0.1299 -0.2698 -0.3814
-0.292 -0.066 -0.3798
-0.2341 0.1875 -0.3935
0.06 0.2598 0.5916
0.2311 0.1764 0.5769
0.2733 -0.0098 0.5795
0.1549 -0.1584 0.5976
-0.0349 -0.1577 0.6175
-0.1533 -0.0081 0.6242
-0.1111 0.1778 0.6127
0.22 0.26 1.7033
0.3599 0.1925 1.6868
0.3945 0.0403 1.6802
0.2976 -0.082 1.6886
0.1424 -0.0823 1.7055
0.0455 0.0396 1.7183
0.0801 0.1919 1.7173
0.3 0.1495 2.812
0.4173 0.0931 2.8086
0.4462 -0.0334 2.7988
0.3651 -0.1348 2.7899
0.2349 -0.1347 2.7886
0.1538 -0.0332 2.7959
0.1827 0.0933 2.8063
0.2 0.0495 3.7115
0.301 -0.0003 3.7183
0.326 -0.11 3.7113
0.2561 -0.1972 3.6958
0.1439 -0.1961 3.6834
0.074 -0.1076 3.6836
0.099 0.0017 3.696
0.2 0.04 3.6629
0.3133 -0.0426 3.6474
0.27 -0.1769 3.6494
0.13 -0.1773 3.666
0.0867 -0.0432 3.6744
0.3 -0.03 4.5017
0.3661 -0.0782 4.4926
0.3409 -0.1565 4.4938
0.2591 -0.1567 4.5035
0.2339 -0.0786 4.5084
-0.985 1.8129 4.7
1.4955 1.6796 4.7
-0.9966 -2.0301 4.7
1.4101 -1.7525 4.7
0.3 -1.2268 5.3228
0.3 1.0204 5.3193
0.3 -1.0148 4.4725
0.3 0.9281 4.4443
2.0372 -0.1 4.5482
2.3723 -0.1 5.1025
-1.7396 -0.1 4.5217
-1.6151 -0.1 5.072
-1.26 0.787 4.8873
-0.7735 0.5104 5.2459
-0.4274 1.6519 5.0699
0.8581 1.2442 4.9838
0.3 1.5395 4.7
1.0252 1.6468 4.534
-0.4095 1.6089 4.5376
-0.6939 0.4651 4.4726
-1.3166 0.8192 4.6127
-1.6064 -0.1 4.7
1.1829 0.402 5.149
2.001 0.8672 4.9042
-0.7914 -0.7206 5.255
0.3 -0.1 5.269
-1.2584 -0.9861 4.6158
-1.1862 -0.945 4.8784
0.3 -0.1 4.4388
-0.7766 -0.7122 4.4536
2.2827 1.0273 4.5929
1.2806 0.4576 4.4756
2.0726 -1.1079 4.9128
1.2488 -0.6395 5.1825
0.9483 -1.6615 5.0297
-0.2879 -1.516 4.999
0.3 -2.3811 4.7
-0.295 -1.533 4.5639
0.978 -1.733 4.5448
1.4768 -0.7691 4.4307
1.9335 -1.0288 4.6118
2.1437 -0.1 4.7
0.2962 0.1039 2.9
0.3109 0.0182 2.9958
0.2552 -0.0926 2.9592
0.2061 -0.0755 2.8408
0.2315 0.046 2.8042
-0.5694 0.3846 3.3
-0.548 0.3108 3.3726
-0.5984 0.222 3.3449
-0.6511 0.241 3.2551
-0.6331 0.3415 3.2274
-1.3789 0.6562 4
-1.3596 0.6047 4.0441
-1.3961 0.5467 4.0273
-1.438 0.5624 3.9727
-1.4274 0.6301 3.9559
-2.2346 1.8424 4.2
-0.7729 1.5334 4.2
-2.1965 -0.5857 4.2
-0.5325 -0.6914 4.2
-1.4 0.044 4.5213
-1.4 1.1834 4.5371
-1.4 -0.1639 4.0014
-1.4 1.2955 4.0191
-0.06 0.6 4.0776
-0.1714 0.6 4.4495
-2.4836 0.6 4.101
-2.5847 0.6 4.4406
-2.448 1.1959 4.3315
-2.065 0.9781 4.5536
-1.8505 1.6852 4.4395
-0.9249 1.7442 4.4526
-1.4 1.6728 4.2
-0.9107 1.7786 4.0829
-1.9085 1.8248 4.0783
-2.1405 1.0211 4.0228
-2.3964 1.1666 4.1437
-2.6161 0.6 4.2
-0.6615 1.0199 4.5926
-0.1297 1.3223 4.3594
-2.1585 0.1687 4.6033
-1.4 0.6 4.6482
-2.6817 -0.1287 4.1276
-2.6905 -0.1337 4.362
-1.4 0.6 4.011
-2.1265 0.1869 4.0262
-0.2334 1.2633 4.1341
-0.5985 1.0557 4.0082
-0.3742 0.0167 4.3287
-0.7301 0.2191 4.5562
-1.0233 -0.3072 4.4003
-1.8176 -0.4059 4.422
-1.4 -0.6097 4.2
-1.7772 -0.3085 4.1098
-0.9445 -0.4972 4.091
-0.6035 0.1471 4.0094
-0.3495 0.0027 4.1407
0.2548 0.6 4.2
0.1933 -0.0875 2.9
0.1929 0.0084 2.9868
0.2852 0.0927 2.9536
0.3427 0.0488 2.8464
0.2859 -0.0625 2.8132
0.7971 -0.5228 3.4
0.791 -0.4415 3.4674
0.8664 -0.3719 3.4416
0.9192 -0.4102 3.3584
0.8764 -0.5035 3.3326
1.4658 -0.9493 4.1
1.4583 -0.8937 4.1427
1.5084 -0.8468 4.1264
1.5469 -0.8734 4.0736
1.5205 -0.9368 4.0573
0.8213 0.1104 4.3
2.2275 0.183 4.3
0.7316 -2.0439 4.3
2.3007 -2.0919 4.3
1.5 -1.4213 4.6103
1.5 -0.175 4.7316
1.5 -1.4662 4.1483
1.5 -0.2669 4.1304
2.6111 -0.9 4.1954
2.3993 -0.9 4.4881
0.4447 -0.9 4.2007
0.277 -0.9 4.5558
0.5938 -0.3847 4.4172
0.9004 -0.5591 4.6284
1.0786 0.115 4.5308
1.8627 -0.0264 4.4986
1.5 0.2271 4.3
1.9542 0.1939 4.1881
1.1223 0.0097 4.2069
0.7826 -0.4921 4.1232
0.5951 -0.3855 4.2474
0.4593 -0.9 4.3
2.1706 -0.5187 4.6673
2.4771 -0.3444 4.4263
0.8529 -1.268 4.6544
1.5 -0.9 4.7616
0.4234 -1.5121 4.2374
0.3391 -1.5601 4.4501
1.5 -0.9 4.1004
0.8372 -1.2769 4.1367
2.5148 -0.323 4.241
2.1398 -0.5362 4.1423
2.4913 -1.4636 4.4282
2.2003 -1.2982 4.6835
1.8577 -1.7615 4.4959
1.0592 -1.9618 4.5414
1.5 -1.9423 4.3
1.0912 -1.8846 4.1993
1.9458 -1.9737 4.1901
2.243 -1.3225 4.1169
2.6267 -1.5406 4.2345
2.6893 -0.9 4.3
1.5 0.4 4.43
1.641 0.4 4.2005
1.4295 0.523 4.2005
1.4295 0.277 4.2005
-0.6 -1.3 4.48
-0.459 -1.3 4.2505
-0.6705 -1.177 4.2505
-0.6705 -1.423 4.2505
-1.9 1.3 4.13
-1.759 1.3 3.9005
-1.9705 1.423 3.9005
-1.9705 1.177 3.9005
0.6 1.5 4.46
0.741 1.5 4.2305
0.5295 1.623 4.2305
0.5295 1.377 4.2305
2 -1.5 4.18
2.141 -1.5 3.9505
1.9295 -1.377 3.9505
1.9295 -1.623 3.9505
0 0 7.9916
Texture Vertices 1
0 0
Faces 366
Face verts 3 flags 0 mat 0
<0,0> <8,0> <7,0>
Face verts 3 flags 0 mat 0
<0,0> <1,0> <8,0>
Face verts 3 flags 0 mat 0
<1,0> <2,0> <8,0>
Face verts 3 flags 0 mat 0
<8,0> <2,0> <9,0>
Face verts 3 flags 0 mat 0
<2,0> <10,0> <9,0>
Face verts 3 flags 0 mat 0
<2,0> <3,0> <10,0>
Face verts 3 flags 0 mat 0
<3,0> <4,0> <10,0>
Face verts 3 flags 0 mat 0
<10,0> <4,0> <11,0>
Face verts 3 flags 0 mat 0
<4,0> <12,0> <11,0>
Face verts 3 flags 0 mat 0
<4,0> <5,0> <12,0>
Face verts 3 flags 0 mat 0
<5,0> <6,0> <12,0>
Face verts 3 flags 0 mat 0
<12,0> <6,0> <13,0>
Face verts 3 flags 0 mat 0
<6,0> <7,0> <13,0>
Face verts 3 flags 0 mat 0
<6,0> <0,0> <7,0>
Face verts 3 flags 0 mat 0
<7,0> <8,0> <14,0>
Face verts 3 flags 0 mat 0
<14,0> <8,0> <15,0>
Face verts 3 flags 0 mat 0
<8,0> <16,0> <15,0>
Face verts 3 flags 0 mat 0
<8,0> <9,0> <16,0>
Face verts 3 flags 0 mat 0
<9,0> <10,0> <16,0>
Face verts 3 flags 0 mat 0
<16,0> <10,0> <17,0>
Face verts 3 flags 0 mat 0
<10,0> <18,0> <17,0>
Face verts 3 flags 0 mat 0
<10,0> <11,0> <18,0>
Face verts 3 flags 0 mat 0
<11,0> <12,0> <18,0>
Face verts 3 flags 0 mat 0
<18,0> <12,0> <19,0>
Face verts 3 flags 0 mat 0
<12,0> <20,0> <19,0>
Face verts 3 flags 0 mat 0
<12,0> <13,0> <20,0>
Face verts 3 flags 0 mat 0
<13,0> <7,0> <20,0>
Face verts 3 flags 0 mat 0
<20,0> <7,0> <14,0>
Face verts 3 flags 0 mat 0
<14,0> <22,0> <21,0>
Face verts 3 flags 0 mat 0
<14,0> <15,0> <22,0>
Face verts 3 flags 0 mat 0
<15,0> <16,0> <22,0>
Face verts 3 flags 0 mat 0
<22,0> <16,0> <23,0>
Face verts 3 flags 0 mat 0
<16,0> <24,0> <23,0>
Face verts 3 flags 0 mat 0
<16,0> <17,0> <24,0>
Face verts 3 flags 0 mat 0
<17,0> <18,0> <24,0>
Face verts 3 flags 0 mat 0
<24,0> <18,0> <25,0>
Face verts 3 flags 0 mat 0
<18,0> <26,0> <25,0>
Face verts 3 flags 0 mat 0
<18,0> <19,0> <26,0>
Face verts 3 flags 0 mat 0
<19,0> <20,0> <26,0>
Face verts 3 flags 0 mat 0
<26,0> <20,0> <27,0>
Face verts 3 flags 0 mat 0
<20,0> <21,0> <27,0>
Face verts 3 flags 0 mat 0
<20,0> <14,0> <21,0>
Face verts 3 flags 0 mat 0
<21,0> <22,0> <28,0>
Face verts 3 flags 0 mat 0
<28,0> <22,0> <29,0>
Face verts 3 flags 0 mat 0
<22,0> <30,0> <29,0>
Face verts 3 flags 0 mat 0
<22,0> <23,0> <30,0>
Face verts 3 flags 0 mat 0
<23,0> <24,0> <30,0>
Face verts 3 flags 0 mat 0
<30,0> <24,0> <31,0>
Face verts 3 flags 0 mat 0
<24,0> <32,0> <31,0>
Face verts 3 flags 0 mat 0
<24,0> <25,0> <32,0>
Face verts 3 flags 0 mat 0
<25,0> <26,0> <32,0>
Face verts 3 flags 0 mat 0
<32,0> <26,0> <33,0>
Face verts 3 flags 0 mat 0
<26,0> <34,0> <33,0>
Face verts 3 flags 0 mat 0
<26,0> <27,0> <34,0>
Face verts 3 flags 0 mat 0
<27,0> <21,0> <34,0>
Face verts 3 flags 0 mat 0
<34,0> <21,0> <28,0>
Face verts 3 flags 0 mat 0
<35,0> <41,0> <40,0>
Face verts 3 flags 0 mat 0
<35,0> <36,0> <41,0>
Face verts 3 flags 0 mat 0
<36,0> <37,0> <41,0>
Face verts 3 flags 0 mat 0
<41,0> <37,0> <42,0>
Face verts 3 flags 0 mat 0
<37,0> <43,0> <42,0>
Face verts 3 flags 0 mat 0
<37,0> <38,0> <43,0>
Face verts 3 flags 0 mat 0
<38,0> <39,0> <43,0>
Face verts 3 flags 0 mat 0
<43,0> <39,0> <44,0>
Face verts 3 flags 0 mat 0
<39,0> <40,0> <44,0>
Face verts 3 flags 0 mat 0
<39,0> <35,0> <40,0>
Face verts 3 flags 0 mat 1
<45,0> <59,0> <57,0>
Face verts 3 flags 0 mat 2
<56,0> <57,0> <58,0>
Face verts 3 flags 0 mat 2
<50,0> <58,0> <59,0>
Face verts 3 flags 0 mat 2
<57,0> <59,0> <58,0>
Face verts 3 flags 0 mat 1
<45,0> <61,0> <59,0>
Face verts 3 flags 0 mat 2
<50,0> <59,0> <60,0>
Face verts 3 flags 0 mat 1
<46,0> <60,0> <61,0>
Face verts 3 flags 0 mat 1
<59,0> <61,0> <60,0>
Face verts 3 flags 0 mat 1
<45,0> <63,0> <61,0>
Face verts 3 flags 0 mat 1
<46,0> <61,0> <62,0>
Face verts 3 flags 0 mat 1
<52,0> <62,0> <63,0>
Face verts 3 flags 0 mat 1
<61,0> <63,0> <62,0>
Face verts 3 flags 0 mat 1
<45,0> <65,0> <63,0>
Face verts 3 flags 0 mat 1
<52,0> <63,0> <64,0>
Face verts 3 flags 0 mat 1
<55,0> <64,0> <65,0>
Face verts 3 flags 0 mat 1
<63,0> <65,0> <64,0>
Face verts 3 flags 0 mat 1
<45,0> <57,0> <65,0>
Face verts 3 flags 0 mat 1
<55,0> <65,0> <66,0>
Face verts 3 flags 0 mat 1
<56,0> <66,0> <57,0>
Face verts 3 flags 0 mat 1
<65,0> <57,0> <66,0>
Face verts 3 flags 0 mat 1
<46,0> <68,0> <60,0>
Face verts 3 flags 0 mat 2
<50,0> <60,0> <67,0>
Face verts 3 flags 0 mat 2
<54,0> <67,0> <68,0>
Face verts 3 flags 0 mat 2
<60,0> <68,0> <67,0>
Face verts 3 flags 0 mat 2
<50,0> <70,0> <58,0>
Face verts 3 flags 0 mat 2
<56,0> <58,0> <69,0>
Face verts 3 flags 0 mat 2
<49,0> <69,0> <70,0>
Face verts 3 flags 0 mat 2
<58,0> <70,0> <69,0>
Face verts 3 flags 0 mat 1
<56,0> <72,0> <66,0>
Face verts 3 flags 0 mat 1
<55,0> <66,0> <71,0>
Face verts 3 flags 0 mat 1
<47,0> <71,0> <72,0>
Face verts 3 flags 0 mat 1
<66,0> <72,0> <71,0>
Face verts 3 flags 0 mat 1
<55,0> <74,0> <64,0>
Face verts 3 flags 0 mat 1
<52,0> <64,0> <73,0>
Face verts 3 flags 0 mat 1
<51,0> <73,0> <74,0>
Face verts 3 flags 0 mat 1
<64,0> <74,0> <73,0>
Face verts 3 flags 0 mat 1
<52,0> <76,0> <62,0>
Face verts 3 flags 0 mat 1
<46,0> <62,0> <75,0>
Face verts 3 flags 0 mat 1
<53,0> <75,0> <76,0>
Face verts 3 flags 0 mat 1
<62,0> <76,0> <75,0>
Face verts 3 flags 0 mat 1
<48,0> <79,0> <77,0>
Face verts 3 flags 0 mat 2
<54,0> <77,0> <78,0>
Face verts 3 flags 0 mat 2
<49,0> <78,0> <79,0>
Face verts 3 flags 0 mat 2
<77,0> <79,0> <78,0>
Face verts 3 flags 0 mat 1
<48,0> <81,0> <79,0>
Face verts 3 flags 0 mat 2
<49,0> <79,0> <80,0>
Face verts 3 flags 0 mat 1
<47,0> <80,0> <81,0>
Face verts 3 flags 0 mat 1
<79,0> <81,0> <80,0>
Face verts 3 flags 0 mat 1
<48,0> <83,0> <81,0>
Face verts 3 flags 0 mat 1
<47,0> <81,0> <82,0>
Face verts 3 flags 0 mat 1
<51,0> <82,0> <83,0>
Face verts 3 flags 0 mat 1
<81,0> <83,0> <82,0>
Face verts 3 flags 0 mat 1
<48,0> <85,0> <83,0>
Face verts 3 flags 0 mat 1
<51,0> <83,0> <84,0>
Face verts 3 flags 0 mat 1
<53,0> <84,0> <85,0>
Face verts 3 flags 0 mat 1
<83,0> <85,0> <84,0>
Face verts 3 flags 0 mat 1
<48,0> <77,0> <85,0>
Face verts 3 flags 0 mat 1
<53,0> <85,0> <86,0>
Face verts 3 flags 0 mat 1
<54,0> <86,0> <77,0>
Face verts 3 flags 0 mat 1
<85,0> <77,0> <86,0>
Face verts 3 flags 0 mat 2
<49,0> <70,0> <78,0>
Face verts 3 flags 0 mat 2
<54,0> <78,0> <67,0>
Face verts 3 flags 0 mat 2
<50,0> <67,0> <70,0>
Face verts 3 flags 0 mat 2
<78,0> <70,0> <67,0>
Face verts 3 flags 0 mat 1
<47,0> <72,0> <80,0>
Face verts 3 flags 0 mat 2
<49,0> <80,0> <69,0>
Face verts 3 flags 0 mat 2
<56,0> <69,0> <72,0>
Face verts 3 flags 0 mat 2
<80,0> <72,0> <69,0>
Face verts 3 flags 0 mat 1
<51,0> <74,0> <82,0>
Face verts 3 flags 0 mat 1
<47,0> <82,0> <71,0>
Face verts 3 flags 0 mat 1
<55,0> <71,0> <74,0>
Face verts 3 flags 0 mat 1
<82,0> <74,0> <71,0>
Face verts 3 flags 0 mat 1
<53,0> <76,0> <84,0>
Face verts 3 flags 0 mat 1
<51,0> <84,0> <73,0>
Face verts 3 flags 0 mat 1
<52,0> <73,0> <76,0>
Face verts 3 flags 0 mat 1
<84,0> <76,0> <73,0>
Face verts 3 flags 0 mat 1
<54,0> <68,0> <86,0>
Face verts 3 flags 0 mat 1
<53,0> <86,0> <75,0>
Face verts 3 flags 0 mat 1
<46,0> <75,0> <68,0>
Face verts 3 flags 0 mat 1
<86,0> <68,0> <75,0>
Face verts 3 flags 0 mat 0
<87,0> <93,0> <92,0>
Face verts 3 flags 0 mat 0
<87,0> <88,0> <93,0>
Face verts 3 flags 0 mat 0
<88,0> <89,0> <93,0>
Face verts 3 flags 0 mat 0
<93,0> <89,0> <94,0>
Face verts 3 flags 0 mat 0
<89,0> <95,0> <94,0>
Face verts 3 flags 0 mat 0
<89,0> <90,0> <95,0>
Face verts 3 flags 0 mat 0
<90,0> <91,0> <95,0>
Face verts 3 flags 0 mat 0
<95,0> <91,0> <96,0>
Face verts 3 flags 0 mat 0
<91,0> <92,0> <96,0>
Face verts 3 flags 0 mat 0
<91,0> <87,0> <92,0>
Face verts 3 flags 0 mat 0
<92,0> <93,0> <97,0>
Face verts 3 flags 0 mat 0
<97,0> <93,0> <98,0>
Face verts 3 flags 0 mat 0
<93,0> <99,0> <98,0>
Face verts 3 flags 0 mat 0
<93,0> <94,0> <99,0>
Face verts 3 flags 0 mat 0
<94,0> <95,0> <99,0>
Face verts 3 flags 0 mat 0
<99,0> <95,0> <100,0>
Face verts 3 flags 0 mat 0
<95,0> <101,0> <100,0>
Face verts 3 flags 0 mat 0
<95,0> <96,0> <101,0>
Face verts 3 flags 0 mat 0
<96,0> <92,0> <101,0>
Face verts 3 flags 0 mat 0
<101,0> <92,0> <97,0>
Face verts 3 flags 0 mat 1
<102,0> <116,0> <114,0>
Face verts 3 flags 0 mat 2
<113,0> <114,0> <115,0>
Face verts 3 flags 0 mat 2
<107,0> <115,0> <116,0>
Face verts 3 flags 0 mat 2
<114,0> <116,0> <115,0>
Face verts 3 flags 0 mat 1
<102,0> <118,0> <116,0>
Face verts 3 flags 0 mat 2
<107,0> <116,0> <117,0>
Face verts 3 flags 0 mat 1
<103,0> <117,0> <118,0>
Face verts 3 flags 0 mat 2
<116,0> <118,0> <117,0>
Face verts 3 flags 0 mat 1
<102,0> <120,0> <118,0>
Face verts 3 flags 0 mat 1
<103,0> <118,0> <119,0>
Face verts 3 flags 0 mat 1
<109,0> <119,0> <120,0>
Face verts 3 flags 0 mat 1
<118,0> <120,0> <119,0>
Face verts 3 flags 0 mat 1
<102,0> <122,0> <120,0>
Face verts 3 flags 0 mat 1
<109,0> <120,0> <121,0>
Face verts 3 flags 0 mat 1
<112,0> <121,0> <122,0>
Face verts 3 flags 0 mat 1
<120,0> <122,0> <121,0>
Face verts 3 flags 0 mat 1
<102,0> <114,0> <122,0>
Face verts 3 flags 0 mat 1
<112,0> <122,0> <123,0>
Face verts 3 flags 0 mat 1
<113,0> <123,0> <114,0>
Face verts 3 flags 0 mat 1
<122,0> <114,0> <123,0>
Face verts 3 flags 0 mat 1
<103,0> <125,0> <117,0>
Face verts 3 flags 0 mat 2
<107,0> <117,0> <124,0>
Face verts 3 flags 0 mat 2
<111,0> <124,0> <125,0>
Face verts 3 flags 0 mat 2
<117,0> <125,0> <124,0>
Face verts 3 flags 0 mat 2
<107,0> <127,0> <115,0>
Face verts 3 flags 0 mat 2
<113,0> <115,0> <126,0>
Face verts 3 flags 0 mat 2
<106,0> <126,0> <127,0>
Face verts 3 flags 0 mat 2
<115,0> <127,0> <126,0>
Face verts 3 flags 0 mat 1
<113,0> <129,0> <123,0>
Face verts 3 flags 0 mat 1
<112,0> <123,0> <128,0>
Face verts 3 flags 0 mat 1
<104,0> <128,0> <129,0>
Face verts 3 flags 0 mat 1
<123,0> <129,0> <128,0>
Face verts 3 flags 0 mat 1
<112,0> <131,0> <121,0>
Face verts 3 flags 0 mat 1
<109,0> <121,0> <130,0>
Face verts 3 flags 0 mat 1
<108,0> <130,0> <131,0>
Face verts 3 flags 0 mat 1
<121,0> <131,0> <130,0>
Face verts 3 flags 0 mat 1
<109,0> <133,0> <119,0>
Face verts 3 flags 0 mat 1
<103,0> <119,0> <132,0>
Face verts 3 flags 0 mat 1
<110,0> <132,0> <133,0>
Face verts 3 flags 0 mat 1
<119,0> <133,0> <132,0>
Face verts 3 flags 0 mat 1
<105,0> <136,0> <134,0>
Face verts 3 flags 0 mat 1
<111,0> <134,0> <135,0>
Face verts 3 flags 0 mat 2
<106,0> <135,0> <136,0>
Face verts 3 flags 0 mat 2
<134,0> <136,0> <135,0>
Face verts 3 flags 0 mat 1
<105,0> <138,0> <136,0>
Face verts 3 flags 0 mat 2
<106,0> <136,0> <137,0>
Face verts 3 flags 0 mat 1
<104,0> <137,0> <138,0>
Face verts 3 flags 0 mat 1
<136,0> <138,0> <137,0>
Face verts 3 flags 0 mat 1
<105,0> <140,0> <138,0>
Face verts 3 flags 0 mat 1
<104,0> <138,0> <139,0>
Face verts 3 flags 0 mat 1
<108,0> <139,0> <140,0>
Face verts 3 flags 0 mat 1
<138,0> <140,0> <139,0>
Face verts 3 flags 0 mat 1
<105,0> <142,0> <140,0>
Face verts 3 flags 0 mat 1
<108,0> <140,0> <141,0>
Face verts 3 flags 0 mat 1
<110,0> <141,0> <142,0>
Face verts 3 flags 0 mat 1
<140,0> <142,0> <141,0>
Face verts 3 flags 0 mat 1
<105,0> <134,0> <142,0>
Face verts 3 flags 0 mat 1
<110,0> <142,0> <143,0>
Face verts 3 flags 0 mat 1
<111,0> <143,0> <134,0>
Face verts 3 flags 0 mat 1
<142,0> <134,0> <143,0>
Face verts 3 flags 0 mat 2
<106,0> <127,0> <135,0>
Face verts 3 flags 0 mat 2
<111,0> <135,0> <124,0>
Face verts 3 flags 0 mat 2
<107,0> <124,0> <127,0>
Face verts 3 flags 0 mat 2
<135,0> <127,0> <124,0>
Face verts 3 flags 0 mat 1
<104,0> <129,0> <137,0>
Face verts 3 flags 0 mat 2
<106,0> <137,0> <126,0>
Face verts 3 flags 0 mat 2
<113,0> <126,0> <129,0>
Face verts 3 flags 0 mat 2
<137,0> <129,0> <126,0>
Face verts 3 flags 0 mat 1
<108,0> <131,0> <139,0>
Face verts 3 flags 0 mat 1
<104,0> <139,0> <128,0>
Face verts 3 flags 0 mat 1
<112,0> <128,0> <131,0>
Face verts 3 flags 0 mat 1
<139,0> <131,0> <128,0>
Face verts 3 flags 0 mat 1
<110,0> <133,0> <141,0>
Face verts 3 flags 0 mat 1
<108,0> <141,0> <130,0>
Face verts 3 flags 0 mat 1
<109,0> <130,0> <133,0>
Face verts 3 flags 0 mat 1
<141,0> <133,0> <130,0>
Face verts 3 flags 0 mat 1
<111,0> <125,0> <143,0>
Face verts 3 flags 0 mat 1
<110,0> <143,0> <132,0>
Face verts 3 flags 0 mat 1
<103,0> <132,0> <125,0>
Face verts 3 flags 0 mat 1
<143,0> <125,0> <132,0>
Face verts 3 flags 0 mat 0
<144,0> <150,0> <149,0>
Face verts 3 flags 0 mat 0
<144,0> <145,0> <150,0>
Face verts 3 flags 0 mat 0
<145,0> <146,0> <150,0>
Face verts 3 flags 0 mat 0
<150,0> <146,0> <151,0>
Face verts 3 flags 0 mat 0
<146,0> <152,0> <151,0>
Face verts 3 flags 0 mat 0
<146,0> <147,0> <152,0>
Face verts 3 flags 0 mat 0
<147,0> <148,0> <152,0>
Face verts 3 flags 0 mat 0
<152,0> <148,0> <153,0>
Face verts 3 flags 0 mat 0
<148,0> <149,0> <153,0>
Face verts 3 flags 0 mat 0
<148,0> <144,0> <149,0>
Face verts 3 flags 0 mat 0
<149,0> <150,0> <154,0>
Face verts 3 flags 0 mat 0
<154,0> <150,0> <155,0>
Face verts 3 flags 0 mat 0
<150,0> <156,0> <155,0>
Face verts 3 flags 0 mat 0
<150,0> <151,0> <156,0>
Face verts 3 flags 0 mat 0
<151,0> <152,0> <156,0>
Face verts 3 flags 0 mat 0
<156,0> <152,0> <157,0>
Face verts 3 flags 0 mat 0
<152,0> <158,0> <157,0>
Face verts 3 flags 0 mat 0
<152,0> <153,0> <158,0>
Face verts 3 flags 0 mat 0
<153,0> <149,0> <158,0>
Face verts 3 flags 0 mat 0
<158,0> <149,0> <154,0>
Face verts 3 flags 0 mat 1
<159,0> <173,0> <171,0>
Face verts 3 flags 0 mat 2
<170,0> <171,0> <172,0>
Face verts 3 flags 0 mat 2
<164,0> <172,0> <173,0>
Face verts 3 flags 0 mat 2
<171,0> <173,0> <172,0>
Face verts 3 flags 0 mat 1
<159,0> <175,0> <173,0>
Face verts 3 flags 0 mat 2
<164,0> <173,0> <174,0>
Face verts 3 flags 0 mat 1
<160,0> <174,0> <175,0>
Face verts 3 flags 0 mat 1
<173,0> <175,0> <174,0>
Face verts 3 flags 0 mat 1
<159,0> <177,0> <175,0>
Face verts 3 flags 0 mat 1
<160,0> <175,0> <176,0>
Face verts 3 flags 0 mat 1
<166,0> <176,0> <177,0>
Face verts 3 flags 0 mat 1
<175,0> <177,0> <176,0>
Face verts 3 flags 0 mat 1
<159,0> <179,0> <177,0>
Face verts 3 flags 0 mat 1
<166,0> <177,0> <178,0>
Face verts 3 flags 0 mat 1
<169,0> <178,0> <179,0>
Face verts 3 flags 0 mat 1
<177,0> <179,0> <178,0>
Face verts 3 flags 0 mat 1
<159,0> <171,0> <179,0>
Face verts 3 flags 0 mat 1
<169,0> <179,0> <180,0>
Face verts 3 flags 0 mat 1
<170,0> <180,0> <171,0>
Face verts 3 flags 0 mat 1
<179,0> <171,0> <180,0>
Face verts 3 flags 0 mat 1
<160,0> <182,0> <174,0>
Face verts 3 flags 0 mat 2
<164,0> <174,0> <181,0>
Face verts 3 flags 0 mat 2
<168,0> <181,0> <182,0>
Face verts 3 flags 0 mat 1
<174,0> <182,0> <181,0>
Face verts 3 flags 0 mat 2
<164,0> <184,0> <172,0>
Face verts 3 flags 0 mat 2
<170,0> <172,0> <183,0>
Face verts 3 flags 0 mat 2
<163,0> <183,0> <184,0>
Face verts 3 flags 0 mat 2
<172,0> <184,0> <183,0>
Face verts 3 flags 0 mat 1
<170,0> <186,0> <180,0>
Face verts 3 flags 0 mat 1
<169,0> <180,0> <185,0>
Face verts 3 flags 0 mat 1
<161,0> <185,0> <186,0>
Face verts 3 flags 0 mat 1
<180,0> <186,0> <185,0>
Face verts 3 flags 0 mat 1
<169,0> <188,0> <178,0>
Face verts 3 flags 0 mat 1
<166,0> <178,0> <187,0>
Face verts 3 flags 0 mat 1
<165,0> <187,0> <188,0>
Face verts 3 flags 0 mat 1
<178,0> <188,0> <187,0>
Face verts 3 flags 0 mat 1
<166,0> <190,0> <176,0>
Face verts 3 flags 0 mat 1
<160,0> <176,0> <189,0>
Face verts 3 flags 0 mat 1
<167,0> <189,0> <190,0>
Face verts 3 flags 0 mat 1
<176,0> <190,0> <189,0>
Face verts 3 flags 0 mat 1
<162,0> <193,0> <191,0>
Face verts 3 flags 0 mat 2
<168,0> <191,0> <192,0>
Face verts 3 flags 0 mat 2
<163,0> <192,0> <193,0>
Face verts 3 flags 0 mat 2
<191,0> <193,0> <192,0>
Face verts 3 flags 0 mat 1
<162,0> <195,0> <193,0>
Face verts 3 flags 0 mat 2
<163,0> <193,0> <194,0>
Face verts 3 flags 0 mat 1
<161,0> <194,0> <195,0>
Face verts 3 flags 0 mat 1
<193,0> <195,0> <194,0>
Face verts 3 flags 0 mat 1
<162,0> <197,0> <195,0>
Face verts 3 flags 0 mat 1
<161,0> <195,0> <196,0>
Face verts 3 flags 0 mat 1
<165,0> <196,0> <197,0>
Face verts 3 flags 0 mat 1
<195,0> <197,0> <196,0>
Face verts 3 flags 0 mat 1
<162,0> <199,0> <197,0>
Face verts 3 flags 0 mat 1
<165,0> <197,0> <198,0>
Face verts 3 flags 0 mat 1
<167,0> <198,0> <199,0>
Face verts 3 flags 0 mat 1
<197,0> <199,0> <198,0>
Face verts 3 flags 0 mat 1
<162,0> <191,0> <199,0>
Face verts 3 flags 0 mat 1
<167,0> <199,0> <200,0>
Face verts 3 flags 0 mat 1
<168,0> <200,0> <191,0>
Face verts 3 flags 0 mat 1
<199,0> <191,0> <200,0>
Face verts 3 flags 0 mat 2
<163,0> <184,0> <192,0>
Face verts 3 flags 0 mat 2
<168,0> <192,0> <181,0>
Face verts 3 flags 0 mat 2
<164,0> <181,0> <184,0>
Face verts 3 flags 0 mat 2
<192,0> <184,0> <181,0>
Face verts 3 flags 0 mat 1
<161,0> <186,0> <194,0>
Face verts 3 flags 0 mat 2
<163,0> <194,0> <183,0>
Face verts 3 flags 0 mat 2
<170,0> <183,0> <186,0>
Face verts 3 flags 0 mat 2
<194,0> <186,0> <183,0>
Face verts 3 flags 0 mat 1
<165,0> <188,0> <196,0>
Face verts 3 flags 0 mat 1
<161,0> <196,0> <185,0>
Face verts 3 flags 0 mat 1
<169,0> <185,0> <188,0>
Face verts 3 flags 0 mat 1
<196,0> <188,0> <185,0>
Face verts 3 flags 0 mat 1
<167,0> <190,0> <198,0>
Face verts 3 flags 0 mat 1
<165,0> <198,0> <187,0>
Face verts 3 flags 0 mat 1
<166,0> <187,0> <190,0>
Face verts 3 flags 0 mat 1
<198,0> <190,0> <187,0>
Face verts 3 flags 0 mat 1
<168,0> <182,0> <200,0>
Face verts 3 flags 0 mat 1
<167,0> <200,0> <189,0>
Face verts 3 flags 0 mat 1
<160,0> <189,0> <182,0>
Face verts 3 flags 0 mat 1
<200,0> <182,0> <189,0>
Face verts 3 flags 0 mat 3
<201,0> <203,0> <202,0>
Face verts 3 flags 0 mat 3
<201,0> <204,0> <203,0>
Face verts 3 flags 0 mat 3
<201,0> <202,0> <204,0>
Face verts 3 flags 0 mat 3
<202,0> <203,0> <204,0>
Face verts 3 flags 0 mat 3
<205,0> <207,0> <206,0>
Face verts 3 flags 0 mat 3
<205,0> <208,0> <207,0>
Face verts 3 flags 0 mat 3
<205,0> <206,0> <208,0>
Face verts 3 flags 0 mat 3
<206,0> <207,0> <208,0>
Face verts 3 flags 0 mat 3
<209,0> <211,0> <210,0>
Face verts 3 flags 0 mat 3
<209,0> <212,0> <211,0>
Face verts 3 flags 0 mat 3
<209,0> <210,0> <212,0>
Face verts 3 flags 0 mat 3
<210,0> <211,0> <212,0>
Face verts 3 flags 0 mat 3
<213,0> <215,0> <214,0>
Face verts 3 flags 0 mat 3
<213,0> <216,0> <215,0>
Face verts 3 flags 0 mat 3
<213,0> <214,0> <216,0>
Face verts 3 flags 0 mat 3
<214,0> <215,0> <216,0>
Face verts 3 flags 0 mat 3
<217,0> <219,0> <218,0>
Face verts 3 flags 0 mat 3
<217,0> <220,0> <219,0>
Face verts 3 flags 0 mat 3
<217,0> <218,0> <220,0>
Face verts 3 flags 0 mat 3
<218,0> <219,0> <220,0>
mat# 0
rgb 0.4833,0.3657,0.3225
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "plastic"
mat# 1
rgb 0.3069,0.4716,0.3696
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "plastic"
mat# 2
rgb 0.4088,0.5578,0.3931
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "plastic"
mat# 3
rgb 1,0.6676,0.1578
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "constant"
