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
World Vertices 202
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
0 0 7.9916
Texture Vertices 35
0.3175 0.4286
0.5714 0.8095
0.6984 0.6825
0.8254 0.6825
0.3175 0.6825
0.9524 0.9365
0.4444 0.6825
0.8254 0.9365
0.6984 0.8095
0.4444 0.9365
0.5714 0.9365
0.3175 0.9365
0.0635 0.9365
0.6984 0.9365
0.3175 0.8095
0.4444 0.5556
0.9524 0.5556
0.5714 0.5556
0.1905 0.5556
0.0635 0.8095
0.9524 0.8095
0.4444 0.8095
0.1905 0.9365
0.8254 0.8095
0.8254 0.5556
0.1905 0.8095
0.0635 0.6825
0.5714 0.6825
0.0635 0.5556
0.1905 0.6825
0.9524 0.6825
0.0635 0.4286
0.3175 0.5556
0.6984 0.5556
0.1905 0.4286
Faces 346
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
Face verts 3 flags 0 mat 0
<45,1> <59,1> <57,1>
Face verts 3 flags 0 mat 0
<56,2> <57,2> <58,2>
Face verts 3 flags 0 mat 0
<50,3> <58,3> <59,3>
Face verts 3 flags 0 mat 0
<57,4> <59,4> <58,4>
Face verts 3 flags 0 mat 0
<45,5> <61,5> <59,5>
Face verts 3 flags 0 mat 0
<50,6> <59,6> <60,6>
Face verts 3 flags 0 mat 0
<46,7> <60,7> <61,7>
Face verts 3 flags 0 mat 0
<59,8> <61,8> <60,8>
Face verts 3 flags 0 mat 0
<45,9> <63,9> <61,9>
Face verts 3 flags 0 mat 0
<46,10> <61,10> <62,10>
Face verts 3 flags 0 mat 0
<52,10> <62,10> <63,10>
Face verts 3 flags 0 mat 0
<61,7> <63,7> <62,7>
Face verts 3 flags 0 mat 0
<45,11> <65,11> <63,11>
Face verts 3 flags 0 mat 0
<52,5> <63,5> <64,5>
Face verts 3 flags 0 mat 0
<55,12> <64,12> <65,12>
Face verts 3 flags 0 mat 0
<63,7> <65,7> <64,7>
Face verts 3 flags 0 mat 0
<45,13> <57,13> <65,13>
Face verts 3 flags 0 mat 0
<55,10> <65,10> <66,10>
Face verts 3 flags 0 mat 0
<56,14> <66,14> <57,14>
Face verts 3 flags 0 mat 0
<65,10> <57,10> <66,10>
Face verts 3 flags 0 mat 0
<46,8> <68,8> <60,8>
Face verts 3 flags 0 mat 0
<50,15> <60,15> <67,15>
Face verts 3 flags 0 mat 0
<54,4> <67,4> <68,4>
Face verts 3 flags 0 mat 0
<60,4> <68,4> <67,4>
Face verts 3 flags 0 mat 0
<50,16> <70,16> <58,16>
Face verts 3 flags 0 mat 0
<56,17> <58,17> <69,17>
Face verts 3 flags 0 mat 0
<49,15> <69,15> <70,15>
Face verts 3 flags 0 mat 0
<58,18> <70,18> <69,18>
Face verts 3 flags 0 mat 0
<56,14> <72,14> <66,14>
Face verts 3 flags 0 mat 0
<55,5> <66,5> <71,5>
Face verts 3 flags 0 mat 0
<47,11> <71,11> <72,11>
Face verts 3 flags 0 mat 0
<66,13> <72,13> <71,13>
Face verts 3 flags 0 mat 0
<55,19> <74,19> <64,19>
Face verts 3 flags 0 mat 0
<52,10> <64,10> <73,10>
Face verts 3 flags 0 mat 0
<51,7> <73,7> <74,7>
Face verts 3 flags 0 mat 0
<64,11> <74,11> <73,11>
Face verts 3 flags 0 mat 0
<52,7> <76,7> <62,7>
Face verts 3 flags 0 mat 0
<46,5> <62,5> <75,5>
Face verts 3 flags 0 mat 0
<53,12> <75,12> <76,12>
Face verts 3 flags 0 mat 0
<62,7> <76,7> <75,7>
Face verts 3 flags 0 mat 0
<48,20> <79,20> <77,20>
Face verts 3 flags 0 mat 0
<54,2> <77,2> <78,2>
Face verts 3 flags 0 mat 0
<49,3> <78,3> <79,3>
Face verts 3 flags 0 mat 0
<77,2> <79,2> <78,2>
Face verts 3 flags 0 mat 0
<48,7> <81,7> <79,7>
Face verts 3 flags 0 mat 0
<49,2> <79,2> <80,2>
Face verts 3 flags 0 mat 0
<47,21> <80,21> <81,21>
Face verts 3 flags 0 mat 0
<79,1> <81,1> <80,1>
Face verts 3 flags 0 mat 0
<48,11> <83,11> <81,11>
Face verts 3 flags 0 mat 0
<47,22> <81,22> <82,22>
Face verts 3 flags 0 mat 0
<51,12> <82,12> <83,12>
Face verts 3 flags 0 mat 0
<81,7> <83,7> <82,7>
Face verts 3 flags 0 mat 0
<48,11> <85,11> <83,11>
Face verts 3 flags 0 mat 0
<51,11> <83,11> <84,11>
Face verts 3 flags 0 mat 0
<53,10> <84,10> <85,10>
Face verts 3 flags 0 mat 0
<83,12> <85,12> <84,12>
Face verts 3 flags 0 mat 0
<48,5> <77,5> <85,5>
Face verts 3 flags 0 mat 0
<53,22> <85,22> <86,22>
Face verts 3 flags 0 mat 0
<54,23> <86,23> <77,23>
Face verts 3 flags 0 mat 0
<85,19> <77,19> <86,19>
Face verts 3 flags 0 mat 0
<49,18> <70,18> <78,18>
Face verts 3 flags 0 mat 0
<54,3> <78,3> <67,3>
Face verts 3 flags 0 mat 0
<50,24> <67,24> <70,24>
Face verts 3 flags 0 mat 0
<78,18> <70,18> <67,18>
Face verts 3 flags 0 mat 0
<47,25> <72,25> <80,25>
Face verts 3 flags 0 mat 0
<49,18> <80,18> <69,18>
Face verts 3 flags 0 mat 0
<56,2> <69,2> <72,2>
Face verts 3 flags 0 mat 0
<80,6> <72,6> <69,6>
Face verts 3 flags 0 mat 0
<51,19> <74,19> <82,19>
Face verts 3 flags 0 mat 0
<47,10> <82,10> <71,10>
Face verts 3 flags 0 mat 0
<55,5> <71,5> <74,5>
Face verts 3 flags 0 mat 0
<82,22> <74,22> <71,22>
Face verts 3 flags 0 mat 0
<53,22> <76,22> <84,22>
Face verts 3 flags 0 mat 0
<51,5> <84,5> <73,5>
Face verts 3 flags 0 mat 0
<52,9> <73,9> <76,9>
Face verts 3 flags 0 mat 0
<84,22> <76,22> <73,22>
Face verts 3 flags 0 mat 0
<54,26> <68,26> <86,26>
Face verts 3 flags 0 mat 0
<53,11> <86,11> <75,11>
Face verts 3 flags 0 mat 0
<46,19> <75,19> <68,19>
Face verts 3 flags 0 mat 0
<86,5> <68,5> <75,5>
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
Face verts 3 flags 0 mat 0
<102,23> <116,23> <114,23>
Face verts 3 flags 0 mat 0
<113,27> <114,27> <115,27>
Face verts 3 flags 0 mat 0
<107,18> <115,18> <116,18>
Face verts 3 flags 0 mat 0
<114,4> <116,4> <115,4>
Face verts 3 flags 0 mat 0
<102,19> <118,19> <116,19>
Face verts 3 flags 0 mat 0
<107,28> <116,28> <117,28>
Face verts 3 flags 0 mat 0
<103,25> <117,25> <118,25>
Face verts 3 flags 0 mat 0
<116,29> <118,29> <117,29>
Face verts 3 flags 0 mat 0
<102,7> <120,7> <118,7>
Face verts 3 flags 0 mat 0
<103,13> <118,13> <119,13>
Face verts 3 flags 0 mat 0
<109,22> <119,22> <120,22>
Face verts 3 flags 0 mat 0
<118,19> <120,19> <119,19>
Face verts 3 flags 0 mat 0
<102,10> <122,10> <120,10>
Face verts 3 flags 0 mat 0
<109,10> <120,10> <121,10>
Face verts 3 flags 0 mat 0
<112,10> <121,10> <122,10>
Face verts 3 flags 0 mat 0
<120,11> <122,11> <121,11>
Face verts 3 flags 0 mat 0
<102,25> <114,25> <122,25>
Face verts 3 flags 0 mat 0
<112,10> <122,10> <123,10>
Face verts 3 flags 0 mat 0
<113,25> <123,25> <114,25>
Face verts 3 flags 0 mat 0
<122,5> <114,5> <123,5>
Face verts 3 flags 0 mat 0
<103,21> <125,21> <117,21>
Face verts 3 flags 0 mat 0
<107,28> <117,28> <124,28>
Face verts 3 flags 0 mat 0
<111,30> <124,30> <125,30>
Face verts 3 flags 0 mat 0
<117,6> <125,6> <124,6>
Face verts 3 flags 0 mat 0
<107,16> <127,16> <115,16>
Face verts 3 flags 0 mat 0
<113,18> <115,18> <126,18>
Face verts 3 flags 0 mat 0
<106,18> <126,18> <127,18>
Face verts 3 flags 0 mat 0
<115,31> <127,31> <126,31>
Face verts 3 flags 0 mat 0
<113,23> <129,23> <123,23>
Face verts 3 flags 0 mat 0
<112,19> <123,19> <128,19>
Face verts 3 flags 0 mat 0
<104,10> <128,10> <129,10>
Face verts 3 flags 0 mat 0
<123,9> <129,9> <128,9>
Face verts 3 flags 0 mat 0
<112,5> <131,5> <121,5>
Face verts 3 flags 0 mat 0
<109,7> <121,7> <130,7>
Face verts 3 flags 0 mat 0
<108,22> <130,22> <131,22>
Face verts 3 flags 0 mat 0
<121,7> <131,7> <130,7>
Face verts 3 flags 0 mat 0
<109,7> <133,7> <119,7>
Face verts 3 flags 0 mat 0
<103,5> <119,5> <132,5>
Face verts 3 flags 0 mat 0
<110,7> <132,7> <133,7>
Face verts 3 flags 0 mat 0
<119,22> <133,22> <132,22>
Face verts 3 flags 0 mat 0
<105,19> <136,19> <134,19>
Face verts 3 flags 0 mat 0
<111,26> <134,26> <135,26>
Face verts 3 flags 0 mat 0
<106,4> <135,4> <136,4>
Face verts 3 flags 0 mat 0
<134,29> <136,29> <135,29>
Face verts 3 flags 0 mat 0
<105,21> <138,21> <136,21>
Face verts 3 flags 0 mat 0
<106,6> <136,6> <137,6>
Face verts 3 flags 0 mat 0
<104,25> <137,25> <138,25>
Face verts 3 flags 0 mat 0
<136,20> <138,20> <137,20>
Face verts 3 flags 0 mat 0
<105,22> <140,22> <138,22>
Face verts 3 flags 0 mat 0
<104,11> <138,11> <139,11>
Face verts 3 flags 0 mat 0
<108,10> <139,10> <140,10>
Face verts 3 flags 0 mat 0
<138,19> <140,19> <139,19>
Face verts 3 flags 0 mat 0
<105,10> <142,10> <140,10>
Face verts 3 flags 0 mat 0
<108,12> <140,12> <141,12>
Face verts 3 flags 0 mat 0
<110,5> <141,5> <142,5>
Face verts 3 flags 0 mat 0
<140,11> <142,11> <141,11>
Face verts 3 flags 0 mat 0
<105,25> <134,25> <142,25>
Face verts 3 flags 0 mat 0
<110,9> <142,9> <143,9>
Face verts 3 flags 0 mat 0
<111,23> <143,23> <134,23>
Face verts 3 flags 0 mat 0
<142,19> <134,19> <143,19>
Face verts 3 flags 0 mat 0
<106,17> <127,17> <135,17>
Face verts 3 flags 0 mat 0
<111,3> <135,3> <124,3>
Face verts 3 flags 0 mat 0
<107,18> <124,18> <127,18>
Face verts 3 flags 0 mat 0
<135,32> <127,32> <124,32>
Face verts 3 flags 0 mat 0
<104,25> <129,25> <137,25>
Face verts 3 flags 0 mat 0
<106,2> <137,2> <126,2>
Face verts 3 flags 0 mat 0
<113,4> <126,4> <129,4>
Face verts 3 flags 0 mat 0
<137,2> <129,2> <126,2>
Face verts 3 flags 0 mat 0
<108,10> <131,10> <139,10>
Face verts 3 flags 0 mat 0
<104,12> <139,12> <128,12>
Face verts 3 flags 0 mat 0
<112,22> <128,22> <131,22>
Face verts 3 flags 0 mat 0
<139,19> <131,19> <128,19>
Face verts 3 flags 0 mat 0
<110,10> <133,10> <141,10>
Face verts 3 flags 0 mat 0
<108,11> <141,11> <130,11>
Face verts 3 flags 0 mat 0
<109,11> <130,11> <133,11>
Face verts 3 flags 0 mat 0
<141,7> <133,7> <130,7>
Face verts 3 flags 0 mat 0
<111,14> <125,14> <143,14>
Face verts 3 flags 0 mat 0
<110,10> <143,10> <132,10>
Face verts 3 flags 0 mat 0
<103,14> <132,14> <125,14>
Face verts 3 flags 0 mat 0
<143,25> <125,25> <132,25>
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
Face verts 3 flags 0 mat 0
<159,14> <173,14> <171,14>
Face verts 3 flags 0 mat 0
<170,6> <171,6> <172,6>
Face verts 3 flags 0 mat 0
<164,15> <172,15> <173,15>
Face verts 3 flags 0 mat 0
<171,2> <173,2> <172,2>
Face verts 3 flags 0 mat 0
<159,5> <175,5> <173,5>
Face verts 3 flags 0 mat 0
<164,6> <173,6> <174,6>
Face verts 3 flags 0 mat 0
<160,7> <174,7> <175,7>
Face verts 3 flags 0 mat 0
<173,8> <175,8> <174,8>
Face verts 3 flags 0 mat 0
<159,13> <177,13> <175,13>
Face verts 3 flags 0 mat 0
<160,10> <175,10> <176,10>
Face verts 3 flags 0 mat 0
<166,11> <176,11> <177,11>
Face verts 3 flags 0 mat 0
<175,19> <177,19> <176,19>
Face verts 3 flags 0 mat 0
<159,10> <179,10> <177,10>
Face verts 3 flags 0 mat 0
<166,9> <177,9> <178,9>
Face verts 3 flags 0 mat 0
<169,10> <178,10> <179,10>
Face verts 3 flags 0 mat 0
<177,7> <179,7> <178,7>
Face verts 3 flags 0 mat 0
<159,5> <171,5> <179,5>
Face verts 3 flags 0 mat 0
<169,11> <179,11> <180,11>
Face verts 3 flags 0 mat 0
<170,25> <180,25> <171,25>
Face verts 3 flags 0 mat 0
<179,10> <171,10> <180,10>
Face verts 3 flags 0 mat 0
<160,8> <182,8> <174,8>
Face verts 3 flags 0 mat 0
<164,30> <174,30> <181,30>
Face verts 3 flags 0 mat 0
<168,2> <181,2> <182,2>
Face verts 3 flags 0 mat 0
<174,26> <182,26> <181,26>
Face verts 3 flags 0 mat 0
<164,33> <184,33> <172,33>
Face verts 3 flags 0 mat 0
<170,15> <172,15> <183,15>
Face verts 3 flags 0 mat 0
<163,15> <183,15> <184,15>
Face verts 3 flags 0 mat 0
<172,24> <184,24> <183,24>
Face verts 3 flags 0 mat 0
<170,8> <186,8> <180,8>
Face verts 3 flags 0 mat 0
<169,5> <180,5> <185,5>
Face verts 3 flags 0 mat 0
<161,10> <185,10> <186,10>
Face verts 3 flags 0 mat 0
<180,11> <186,11> <185,11>
Face verts 3 flags 0 mat 0
<169,7> <188,7> <178,7>
Face verts 3 flags 0 mat 0
<166,7> <178,7> <187,7>
Face verts 3 flags 0 mat 0
<165,5> <187,5> <188,5>
Face verts 3 flags 0 mat 0
<178,5> <188,5> <187,5>
Face verts 3 flags 0 mat 0
<166,12> <190,12> <176,12>
Face verts 3 flags 0 mat 0
<160,11> <176,11> <189,11>
Face verts 3 flags 0 mat 0
<167,13> <189,13> <190,13>
Face verts 3 flags 0 mat 0
<176,19> <190,19> <189,19>
Face verts 3 flags 0 mat 0
<162,23> <193,23> <191,23>
Face verts 3 flags 0 mat 0
<168,6> <191,6> <192,6>
Face verts 3 flags 0 mat 0
<163,15> <192,15> <193,15>
Face verts 3 flags 0 mat 0
<191,27> <193,27> <192,27>
Face verts 3 flags 0 mat 0
<162,19> <195,19> <193,19>
Face verts 3 flags 0 mat 0
<163,27> <193,27> <194,27>
Face verts 3 flags 0 mat 0
<161,14> <194,14> <195,14>
Face verts 3 flags 0 mat 0
<193,23> <195,23> <194,23>
Face verts 3 flags 0 mat 0
<162,5> <197,5> <195,5>
Face verts 3 flags 0 mat 0
<161,5> <195,5> <196,5>
Face verts 3 flags 0 mat 0
<165,9> <196,9> <197,9>
Face verts 3 flags 0 mat 0
<195,19> <197,19> <196,19>
Face verts 3 flags 0 mat 0
<162,22> <199,22> <197,22>
Face verts 3 flags 0 mat 0
<165,22> <197,22> <198,22>
Face verts 3 flags 0 mat 0
<167,22> <198,22> <199,22>
Face verts 3 flags 0 mat 0
<197,10> <199,10> <198,10>
Face verts 3 flags 0 mat 0
<162,11> <191,11> <199,11>
Face verts 3 flags 0 mat 0
<167,19> <199,19> <200,19>
Face verts 3 flags 0 mat 0
<168,8> <200,8> <191,8>
Face verts 3 flags 0 mat 0
<199,11> <191,11> <200,11>
Face verts 3 flags 0 mat 0
<163,15> <184,15> <192,15>
Face verts 3 flags 0 mat 0
<168,3> <192,3> <181,3>
Face verts 3 flags 0 mat 0
<164,33> <181,33> <184,33>
Face verts 3 flags 0 mat 0
<192,34> <184,34> <181,34>
Face verts 3 flags 0 mat 0
<161,1> <186,1> <194,1>
Face verts 3 flags 0 mat 0
<163,15> <194,15> <183,15>
Face verts 3 flags 0 mat 0
<170,2> <183,2> <186,2>
Face verts 3 flags 0 mat 0
<194,3> <186,3> <183,3>
Face verts 3 flags 0 mat 0
<165,5> <188,5> <196,5>
Face verts 3 flags 0 mat 0
<161,5> <196,5> <185,5>
Face verts 3 flags 0 mat 0
<169,10> <185,10> <188,10>
Face verts 3 flags 0 mat 0
<196,10> <188,10> <185,10>
Face verts 3 flags 0 mat 0
<167,7> <190,7> <198,7>
Face verts 3 flags 0 mat 0
<165,11> <198,11> <187,11>
Face verts 3 flags 0 mat 0
<166,10> <187,10> <190,10>
Face verts 3 flags 0 mat 0
<198,10> <190,10> <187,10>
Face verts 3 flags 0 mat 0
<168,19> <182,19> <200,19>
Face verts 3 flags 0 mat 0
<167,10> <200,10> <189,10>
Face verts 3 flags 0 mat 0
<160,13> <189,13> <182,13>
Face verts 3 flags 0 mat 0
<200,25> <182,25> <189,25>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\pine.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "plastic"
