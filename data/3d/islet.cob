# islet: made by art/build.sh, do not edit
Name islet
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 232
7.0347 0 -0.3
5.9001 0 -0.04
4.8789 0 0.14
3.6308 0 0.46
2.2693 0 0.84
1.0212 0 1.04
0.0001 0 1.08
7.3717 1.7316 -0.3
6.1827 1.4523 -0.04
5.1127 1.201 0.14
3.8048 0.8937 0.46
2.378 0.5586 0.84
1.0701 0.2514 1.04
0.0001 0 1.08
6.0352 3.1029 -0.3
5.0618 2.6024 -0.04
4.1857 2.152 0.14
3.1149 1.6015 0.46
1.9468 1.0009 0.84
0.8761 0.4504 1.04
0.0001 0.0001 1.08
4.0343 3.7247 -0.3
3.3836 3.1239 -0.04
2.798 2.5832 0.14
2.0822 1.9224 0.46
1.3014 1.2015 0.84
0.5856 0.5407 1.04
0.0001 0.0001 1.08
2.4054 4.2136 -0.3
2.0174 3.534 -0.04
1.6682 2.9223 0.14
1.2415 2.1748 0.46
0.7759 1.3592 0.84
0.3492 0.6117 1.04
0 0.0001 1.08
0.8432 4.6917 -0.3
0.7072 3.935 -0.04
0.5848 3.2539 0.14
0.4352 2.4215 0.46
0.272 1.5135 0.84
0.1224 0.6811 1.04
0 0.0001 1.08
-0.8002 4.4526 -0.3
-0.6712 3.7344 -0.04
-0.555 3.0881 0.14
-0.413 2.2981 0.46
-0.2581 1.4363 0.84
-0.1162 0.6463 1.04
0 0.0001 1.08
-2.0688 3.6241 -0.3
-1.7351 3.0395 -0.04
-1.4348 2.5135 0.14
-1.0678 1.8705 0.46
-0.6674 1.1691 0.84
-0.3003 0.5261 1.04
0 0.0001 1.08
-3.3395 3.0832 -0.3
-2.8008 2.5859 -0.04
-2.3161 2.1383 0.14
-1.7236 1.5913 0.46
-1.0772 0.9946 0.84
-0.4848 0.4476 1.04
-0.0001 0 1.08
-5.2149 2.6811 -0.3
-4.3738 2.2487 -0.04
-3.6168 1.8595 0.14
-2.6916 1.3838 0.46
-1.6822 0.8649 0.84
-0.757 0.3892 1.04
-0.0001 0 1.08
-6.8157 1.601 -0.3
-5.7164 1.3428 -0.04
-4.727 1.1104 0.14
-3.5178 0.8263 0.46
-2.1986 0.5165 0.84
-0.9894 0.2324 1.04
-0.0001 0 1.08
-7.0347 0 -0.3
-5.9001 0 -0.04
-4.8789 0 0.14
-3.6308 0 0.46
-2.2693 0 0.84
-1.0212 0 1.04
-0.0001 0 1.08
-6.4296 -1.5103 -0.3
-5.3926 -1.2667 -0.04
-4.4592 -1.0475 0.14
-3.3185 -0.7795 0.46
-2.0741 -0.4872 0.84
-0.9333 -0.2192 1.04
-0.0001 0 1.08
-5.8001 -2.982 -0.3
-4.8646 -2.501 -0.04
-4.0226 -2.0682 0.14
-2.9936 -1.5391 0.46
-1.871 -0.9619 0.84
-0.8419 -0.4329 1.04
-0.0001 0 1.08
-4.6252 -4.2702 -0.3
-3.8792 -3.5815 -0.04
-3.2078 -2.9616 0.14
-2.3872 -2.204 0.46
-1.492 -1.3775 0.84
-0.6714 -0.6199 1.04
-0.0001 -0.0001 1.08
-2.6282 -4.6039 -0.3
-2.2043 -3.8613 -0.04
-1.8228 -3.193 0.14
-1.3565 -2.3762 0.46
-0.8478 -1.4851 0.84
-0.3815 -0.6683 1.04
0 -0.0001 1.08
-0.7365 -4.098 -0.3
-0.6177 -3.4371 -0.04
-0.5108 -2.8422 0.14
-0.3801 -2.1151 0.46
-0.2376 -1.3219 0.84
-0.1069 -0.5949 1.04
0 -0.0001 1.08
0.6935 -3.8589 -0.3
0.5817 -3.2365 -0.04
0.481 -2.6763 0.14
0.358 -1.9917 0.46
0.2237 -1.2448 0.84
0.1007 -0.5602 1.04
0 -0.0001 1.08
2.2916 -4.0144 -0.3
1.922 -3.3669 -0.04
1.5893 -2.7841 0.14
1.1828 -2.0719 0.46
0.7392 -1.295 0.84
0.3327 -0.5827 1.04
0 -0.0001 1.08
3.9304 -3.6287 -0.3
3.2964 -3.0434 -0.04
2.7259 -2.5167 0.14
2.0286 -1.8729 0.46
1.2679 -1.1706 0.84
0.5705 -0.5267 1.04
0.0001 -0.0001 1.08
4.9798 -2.5602 -0.3
4.1766 -2.1473 -0.04
3.4537 -1.7757 0.14
2.5702 -1.3214 0.46
1.6064 -0.8259 0.84
0.7229 -0.3716 1.04
0.0001 0 1.08
5.8735 -1.3797 -0.3
4.9262 -1.1572 -0.04
4.0736 -0.9569 0.14
3.0315 -0.7121 0.46
1.8947 -0.4451 0.84
0.8526 -0.2003 1.04
0.0001 0 1.08
-3.4439 1.7586 0.1514
-3.8219 1.5951 0.4318
-3.3117 1.8346 0.4479
-3.8093 1.2 0.5668
-3.5294 1.4545 0.753
-3 1.6772 0.7942
-3 1.8155 0.0823
-2.6749 1.862 0.494
-2.6616 1.6259 0.1
-3.2333 1.6751 -0.1459
-2.7857 1.6363 -0.1478
-3 1.5051 -0.3142
-3.6648 1.5195 0.027
-3.3968 1.3907 -0.2642
-3.6923 1.2 -0.081
-3.7239 1.2 0.2584
-2.3341 1.5201 0.3207
-2.4851 1.4475 0.6667
-2.1561 1.2 0.4149
-3 1.2 1.0146
-3.5177 0.9511 0.7817
-3 0.7743 0.795
-3.6864 0.87 0.4163
-3.6587 0.8834 0.0556
-3.395 0.7029 0.1792
-3.406 1.0049 -0.2743
-2.5672 1.408 -0.3695
-2.4964 1.4421 -0.0346
-2.1373 1.2 -0.2961
-2.4838 0.5503 0.0549
-2.2024 0.8166 0.2706
-2.7284 0.647 0.4065
-2.5114 0.9651 0.6183
-3 0.5331 0.1557
-3.305 0.579 0.522
-2.684 0.5565 -0.2495
-3.2355 0.7205 -0.1051
-3 0.7977 -0.439
-2.0881 0.7616 -0.1629
-2.5263 0.9723 -0.4465
-2.0371 1.2 0.1
2.2009 -0.9543 0.3056
2.1704 -1.3345 0.4893
2.3571 -0.964 0.7526
2.2095 -1.6 0.5915
2.2408 -1.378 1.0512
2.6 -1.3043 0.8995
2.6 -0.9204 0.1214
2.8057 -1.0614 0.6845
2.9517 -1.031 0.1199
2.4278 -1.1491 -0.1784
2.7742 -1.1439 -0.1989
2.2306 -1.3717 0.047
2.1816 -1.6 -0.1375
2.29 -1.4084 -0.4178
2.0745 -1.6 0.1286
3.1324 -1.271 0.4656
2.8847 -1.424 0.8334
3.0807 -1.6 0.5861
2.6 -1.6 1.0087
2.3288 -1.7676 0.8917
2.6 -1.9126 0.9987
2.2669 -1.8058 0.4115
2.1422 -1.8829 -0.0105
2.2622 -2.1465 0.2664
3.0386 -1.3289 -0.0077
2.8961 -2.079 0.2416
3.085 -1.8997 0.5223
2.7818 -2.076 0.6933
2.8878 -1.7779 0.881
2.6 -2.2248 0.1113
2.3999 -2.124 0.7703
2.7979 -2.118 -0.1869
2.4023 -2.1175 -0.2031
3.0741 -1.893 0.0255
3.1385 -1.6 -0.3065
3.2384 -1.6 0.2201
0 0 10.7612
Texture Vertices 53
0.0635 0.6825
0.9524 0.4286
0.3175 0.1746
0.5714 0.1746
0.4444 0.1746
0.0635 0.9365
0.9524 0.8095
0.0635 0.4286
0.4444 0.5556
0.4444 0.4286
0.6984 0.8095
0.1905 0.4286
0.9524 0.9365
0.8254 0.9365
0.1905 0.9365
0.5714 0.9365
0.3175 0.9365
0.5714 0.8095
0.1905 0.8095
0.8254 0.4286
0.8254 0.8095
0.0635 0.1746
0.6984 0.4286
0.5714 0.4286
0.4444 0.3016
0.9524 0.3016
0.3175 0.3016
0.8254 0.5556
0.3175 0.4286
0.4444 0.9365
0.0635 0.8095
0.6984 0.3016
0.1905 0.1746
0.5714 0.3016
0.8254 0.3016
0.3175 0.8095
0.6984 0.5556
0.6984 0.6825
0.0635 0.3016
0.5714 0.6825
0.1905 0.3016
0.5714 0.5556
0.4444 0.8095
0.6984 0.9365
0.3175 0.5556
0.0635 0.5556
0.1905 0.6825
0.9524 0.5556
0.9524 0.6825
0.3175 0.6825
0.4444 0.6825
0.1905 0.5556
0.8254 0.6825
Faces 395
Face verts 3 flags 0 mat 0
<0,0> <8,0> <7,0>
Face verts 3 flags 0 mat 0
<0,0> <1,0> <8,0>
Face verts 3 flags 0 mat 0
<1,1> <2,1> <8,1>
Face verts 3 flags 0 mat 0
<8,1> <2,1> <9,1>
Face verts 3 flags 0 mat 0
<2,2> <10,2> <9,2>
Face verts 3 flags 0 mat 0
<2,2> <3,2> <10,2>
Face verts 3 flags 0 mat 0
<3,3> <4,3> <10,3>
Face verts 3 flags 0 mat 0
<10,3> <4,3> <11,3>
Face verts 3 flags 0 mat 0
<4,4> <12,4> <11,4>
Face verts 3 flags 0 mat 0
<4,4> <5,4> <12,4>
Face verts 3 flags 0 mat 0
<5,5> <6,5> <12,5>
Face verts 3 flags 0 mat 0
<12,5> <6,5> <13,5>
Face verts 3 flags 0 mat 0
<7,0> <8,0> <14,0>
Face verts 3 flags 0 mat 0
<14,0> <8,0> <15,0>
Face verts 3 flags 0 mat 0
<8,1> <16,1> <15,1>
Face verts 3 flags 0 mat 0
<8,1> <9,1> <16,1>
Face verts 3 flags 0 mat 0
<9,2> <10,2> <16,2>
Face verts 3 flags 0 mat 0
<16,2> <10,2> <17,2>
Face verts 3 flags 0 mat 0
<10,3> <18,3> <17,3>
Face verts 3 flags 0 mat 0
<10,3> <11,3> <18,3>
Face verts 3 flags 0 mat 0
<11,4> <12,4> <18,4>
Face verts 3 flags 0 mat 0
<18,4> <12,4> <19,4>
Face verts 3 flags 0 mat 0
<12,5> <20,5> <19,5>
Face verts 3 flags 0 mat 0
<12,5> <13,5> <20,5>
Face verts 3 flags 0 mat 0
<14,0> <22,0> <21,0>
Face verts 3 flags 0 mat 0
<14,0> <15,0> <22,0>
Face verts 3 flags 0 mat 0
<15,1> <16,1> <22,1>
Face verts 3 flags 0 mat 0
<22,1> <16,1> <23,1>
Face verts 3 flags 0 mat 0
<16,2> <24,2> <23,2>
Face verts 3 flags 0 mat 0
<16,2> <17,2> <24,2>
Face verts 3 flags 0 mat 0
<17,3> <18,3> <24,3>
Face verts 3 flags 0 mat 0
<24,3> <18,3> <25,3>
Face verts 3 flags 0 mat 0
<18,4> <26,4> <25,4>
Face verts 3 flags 0 mat 0
<18,4> <19,4> <26,4>
Face verts 3 flags 0 mat 0
<19,5> <20,5> <26,5>
Face verts 3 flags 0 mat 0
<26,5> <20,5> <27,5>
Face verts 3 flags 0 mat 0
<21,0> <22,0> <28,0>
Face verts 3 flags 0 mat 0
<28,0> <22,0> <29,0>
Face verts 3 flags 0 mat 0
<22,1> <30,1> <29,1>
Face verts 3 flags 0 mat 0
<22,1> <23,1> <30,1>
Face verts 3 flags 0 mat 0
<23,2> <24,2> <30,2>
Face verts 3 flags 0 mat 0
<30,2> <24,2> <31,2>
Face verts 3 flags 0 mat 0
<24,3> <32,3> <31,3>
Face verts 3 flags 0 mat 0
<24,3> <25,3> <32,3>
Face verts 3 flags 0 mat 0
<25,4> <26,4> <32,4>
Face verts 3 flags 0 mat 0
<32,4> <26,4> <33,4>
Face verts 3 flags 0 mat 0
<26,5> <34,5> <33,5>
Face verts 3 flags 0 mat 0
<26,5> <27,5> <34,5>
Face verts 3 flags 0 mat 0
<28,0> <36,0> <35,0>
Face verts 3 flags 0 mat 0
<28,0> <29,0> <36,0>
Face verts 3 flags 0 mat 0
<29,1> <30,1> <36,1>
Face verts 3 flags 0 mat 0
<36,1> <30,1> <37,1>
Face verts 3 flags 0 mat 0
<30,2> <38,2> <37,2>
Face verts 3 flags 0 mat 0
<30,2> <31,2> <38,2>
Face verts 3 flags 0 mat 0
<31,3> <32,3> <38,3>
Face verts 3 flags 0 mat 0
<38,3> <32,3> <39,3>
Face verts 3 flags 0 mat 0
<32,4> <40,4> <39,4>
Face verts 3 flags 0 mat 0
<32,4> <33,4> <40,4>
Face verts 3 flags 0 mat 0
<33,5> <34,5> <40,5>
Face verts 3 flags 0 mat 0
<40,5> <34,5> <41,5>
Face verts 3 flags 0 mat 0
<35,0> <36,0> <42,0>
Face verts 3 flags 0 mat 0
<42,0> <36,0> <43,0>
Face verts 3 flags 0 mat 0
<36,1> <44,1> <43,1>
Face verts 3 flags 0 mat 0
<36,1> <37,1> <44,1>
Face verts 3 flags 0 mat 0
<37,2> <38,2> <44,2>
Face verts 3 flags 0 mat 0
<44,2> <38,2> <45,2>
Face verts 3 flags 0 mat 0
<38,3> <46,3> <45,3>
Face verts 3 flags 0 mat 0
<38,3> <39,3> <46,3>
Face verts 3 flags 0 mat 0
<39,4> <40,4> <46,4>
Face verts 3 flags 0 mat 0
<46,4> <40,4> <47,4>
Face verts 3 flags 0 mat 0
<40,5> <48,5> <47,5>
Face verts 3 flags 0 mat 0
<40,5> <41,5> <48,5>
Face verts 3 flags 0 mat 0
<42,0> <50,0> <49,0>
Face verts 3 flags 0 mat 0
<42,0> <43,0> <50,0>
Face verts 3 flags 0 mat 0
<43,1> <44,1> <50,1>
Face verts 3 flags 0 mat 0
<50,1> <44,1> <51,1>
Face verts 3 flags 0 mat 0
<44,2> <52,2> <51,2>
Face verts 3 flags 0 mat 0
<44,2> <45,2> <52,2>
Face verts 3 flags 0 mat 0
<45,3> <46,3> <52,3>
Face verts 3 flags 0 mat 0
<52,3> <46,3> <53,3>
Face verts 3 flags 0 mat 0
<46,4> <54,4> <53,4>
Face verts 3 flags 0 mat 0
<46,4> <47,4> <54,4>
Face verts 3 flags 0 mat 0
<47,5> <48,5> <54,5>
Face verts 3 flags 0 mat 0
<54,5> <48,5> <55,5>
Face verts 3 flags 0 mat 0
<49,0> <50,0> <56,0>
Face verts 3 flags 0 mat 0
<56,0> <50,0> <57,0>
Face verts 3 flags 0 mat 0
<50,1> <58,1> <57,1>
Face verts 3 flags 0 mat 0
<50,1> <51,1> <58,1>
Face verts 3 flags 0 mat 0
<51,2> <52,2> <58,2>
Face verts 3 flags 0 mat 0
<58,2> <52,2> <59,2>
Face verts 3 flags 0 mat 0
<52,3> <60,3> <59,3>
Face verts 3 flags 0 mat 0
<52,3> <53,3> <60,3>
Face verts 3 flags 0 mat 0
<53,4> <54,4> <60,4>
Face verts 3 flags 0 mat 0
<60,4> <54,4> <61,4>
Face verts 3 flags 0 mat 0
<54,5> <62,5> <61,5>
Face verts 3 flags 0 mat 0
<54,5> <55,5> <62,5>
Face verts 3 flags 0 mat 0
<56,0> <64,0> <63,0>
Face verts 3 flags 0 mat 0
<56,0> <57,0> <64,0>
Face verts 3 flags 0 mat 0
<57,1> <58,1> <64,1>
Face verts 3 flags 0 mat 0
<64,1> <58,1> <65,1>
Face verts 3 flags 0 mat 0
<58,2> <66,2> <65,2>
Face verts 3 flags 0 mat 0
<58,2> <59,2> <66,2>
Face verts 3 flags 0 mat 0
<59,3> <60,3> <66,3>
Face verts 3 flags 0 mat 0
<66,3> <60,3> <67,3>
Face verts 3 flags 0 mat 0
<60,4> <68,4> <67,4>
Face verts 3 flags 0 mat 0
<60,4> <61,4> <68,4>
Face verts 3 flags 0 mat 0
<61,5> <62,5> <68,5>
Face verts 3 flags 0 mat 0
<68,5> <62,5> <69,5>
Face verts 3 flags 0 mat 0
<63,0> <64,0> <70,0>
Face verts 3 flags 0 mat 0
<70,0> <64,0> <71,0>
Face verts 3 flags 0 mat 0
<64,1> <72,1> <71,1>
Face verts 3 flags 0 mat 0
<64,1> <65,1> <72,1>
Face verts 3 flags 0 mat 0
<65,2> <66,2> <72,2>
Face verts 3 flags 0 mat 0
<72,2> <66,2> <73,2>
Face verts 3 flags 0 mat 0
<66,3> <74,3> <73,3>
Face verts 3 flags 0 mat 0
<66,3> <67,3> <74,3>
Face verts 3 flags 0 mat 0
<67,4> <68,4> <74,4>
Face verts 3 flags 0 mat 0
<74,4> <68,4> <75,4>
Face verts 3 flags 0 mat 0
<68,5> <76,5> <75,5>
Face verts 3 flags 0 mat 0
<68,5> <69,5> <76,5>
Face verts 3 flags 0 mat 0
<70,0> <78,0> <77,0>
Face verts 3 flags 0 mat 0
<70,0> <71,0> <78,0>
Face verts 3 flags 0 mat 0
<71,1> <72,1> <78,1>
Face verts 3 flags 0 mat 0
<78,1> <72,1> <79,1>
Face verts 3 flags 0 mat 0
<72,2> <80,2> <79,2>
Face verts 3 flags 0 mat 0
<72,2> <73,2> <80,2>
Face verts 3 flags 0 mat 0
<73,3> <74,3> <80,3>
Face verts 3 flags 0 mat 0
<80,3> <74,3> <81,3>
Face verts 3 flags 0 mat 0
<74,4> <82,4> <81,4>
Face verts 3 flags 0 mat 0
<74,4> <75,4> <82,4>
Face verts 3 flags 0 mat 0
<75,5> <76,5> <82,5>
Face verts 3 flags 0 mat 0
<82,5> <76,5> <83,5>
Face verts 3 flags 0 mat 0
<77,0> <78,0> <84,0>
Face verts 3 flags 0 mat 0
<84,0> <78,0> <85,0>
Face verts 3 flags 0 mat 0
<78,1> <86,1> <85,1>
Face verts 3 flags 0 mat 0
<78,1> <79,1> <86,1>
Face verts 3 flags 0 mat 0
<79,2> <80,2> <86,2>
Face verts 3 flags 0 mat 0
<86,2> <80,2> <87,2>
Face verts 3 flags 0 mat 0
<80,3> <88,3> <87,3>
Face verts 3 flags 0 mat 0
<80,3> <81,3> <88,3>
Face verts 3 flags 0 mat 0
<81,4> <82,4> <88,4>
Face verts 3 flags 0 mat 0
<88,4> <82,4> <89,4>
Face verts 3 flags 0 mat 0
<82,5> <90,5> <89,5>
Face verts 3 flags 0 mat 0
<82,5> <83,5> <90,5>
Face verts 3 flags 0 mat 0
<84,0> <92,0> <91,0>
Face verts 3 flags 0 mat 0
<84,0> <85,0> <92,0>
Face verts 3 flags 0 mat 0
<85,1> <86,1> <92,1>
Face verts 3 flags 0 mat 0
<92,1> <86,1> <93,1>
Face verts 3 flags 0 mat 0
<86,2> <94,2> <93,2>
Face verts 3 flags 0 mat 0
<86,2> <87,2> <94,2>
Face verts 3 flags 0 mat 0
<87,3> <88,3> <94,3>
Face verts 3 flags 0 mat 0
<94,3> <88,3> <95,3>
Face verts 3 flags 0 mat 0
<88,4> <96,4> <95,4>
Face verts 3 flags 0 mat 0
<88,4> <89,4> <96,4>
Face verts 3 flags 0 mat 0
<89,5> <90,5> <96,5>
Face verts 3 flags 0 mat 0
<96,5> <90,5> <97,5>
Face verts 3 flags 0 mat 0
<91,0> <92,0> <98,0>
Face verts 3 flags 0 mat 0
<98,0> <92,0> <99,0>
Face verts 3 flags 0 mat 0
<92,1> <100,1> <99,1>
Face verts 3 flags 0 mat 0
<92,1> <93,1> <100,1>
Face verts 3 flags 0 mat 0
<93,2> <94,2> <100,2>
Face verts 3 flags 0 mat 0
<100,2> <94,2> <101,2>
Face verts 3 flags 0 mat 0
<94,3> <102,3> <101,3>
Face verts 3 flags 0 mat 0
<94,3> <95,3> <102,3>
Face verts 3 flags 0 mat 0
<95,4> <96,4> <102,4>
Face verts 3 flags 0 mat 0
<102,4> <96,4> <103,4>
Face verts 3 flags 0 mat 0
<96,5> <104,5> <103,5>
Face verts 3 flags 0 mat 0
<96,5> <97,5> <104,5>
Face verts 3 flags 0 mat 0
<98,0> <106,0> <105,0>
Face verts 3 flags 0 mat 0
<98,0> <99,0> <106,0>
Face verts 3 flags 0 mat 0
<99,1> <100,1> <106,1>
Face verts 3 flags 0 mat 0
<106,1> <100,1> <107,1>
Face verts 3 flags 0 mat 0
<100,2> <108,2> <107,2>
Face verts 3 flags 0 mat 0
<100,2> <101,2> <108,2>
Face verts 3 flags 0 mat 0
<101,3> <102,3> <108,3>
Face verts 3 flags 0 mat 0
<108,3> <102,3> <109,3>
Face verts 3 flags 0 mat 0
<102,4> <110,4> <109,4>
Face verts 3 flags 0 mat 0
<102,4> <103,4> <110,4>
Face verts 3 flags 0 mat 0
<103,5> <104,5> <110,5>
Face verts 3 flags 0 mat 0
<110,5> <104,5> <111,5>
Face verts 3 flags 0 mat 0
<105,0> <106,0> <112,0>
Face verts 3 flags 0 mat 0
<112,0> <106,0> <113,0>
Face verts 3 flags 0 mat 0
<106,1> <114,1> <113,1>
Face verts 3 flags 0 mat 0
<106,1> <107,1> <114,1>
Face verts 3 flags 0 mat 0
<107,2> <108,2> <114,2>
Face verts 3 flags 0 mat 0
<114,2> <108,2> <115,2>
Face verts 3 flags 0 mat 0
<108,3> <116,3> <115,3>
Face verts 3 flags 0 mat 0
<108,3> <109,3> <116,3>
Face verts 3 flags 0 mat 0
<109,4> <110,4> <116,4>
Face verts 3 flags 0 mat 0
<116,4> <110,4> <117,4>
Face verts 3 flags 0 mat 0
<110,5> <118,5> <117,5>
Face verts 3 flags 0 mat 0
<110,5> <111,5> <118,5>
Face verts 3 flags 0 mat 0
<112,0> <120,0> <119,0>
Face verts 3 flags 0 mat 0
<112,0> <113,0> <120,0>
Face verts 3 flags 0 mat 0
<113,1> <114,1> <120,1>
Face verts 3 flags 0 mat 0
<120,1> <114,1> <121,1>
Face verts 3 flags 0 mat 0
<114,2> <122,2> <121,2>
Face verts 3 flags 0 mat 0
<114,2> <115,2> <122,2>
Face verts 3 flags 0 mat 0
<115,3> <116,3> <122,3>
Face verts 3 flags 0 mat 0
<122,3> <116,3> <123,3>
Face verts 3 flags 0 mat 0
<116,4> <124,4> <123,4>
Face verts 3 flags 0 mat 0
<116,4> <117,4> <124,4>
Face verts 3 flags 0 mat 0
<117,5> <118,5> <124,5>
Face verts 3 flags 0 mat 0
<124,5> <118,5> <125,5>
Face verts 3 flags 0 mat 0
<119,0> <120,0> <126,0>
Face verts 3 flags 0 mat 0
<126,0> <120,0> <127,0>
Face verts 3 flags 0 mat 0
<120,1> <128,1> <127,1>
Face verts 3 flags 0 mat 0
<120,1> <121,1> <128,1>
Face verts 3 flags 0 mat 0
<121,2> <122,2> <128,2>
Face verts 3 flags 0 mat 0
<128,2> <122,2> <129,2>
Face verts 3 flags 0 mat 0
<122,3> <130,3> <129,3>
Face verts 3 flags 0 mat 0
<122,3> <123,3> <130,3>
Face verts 3 flags 0 mat 0
<123,4> <124,4> <130,4>
Face verts 3 flags 0 mat 0
<130,4> <124,4> <131,4>
Face verts 3 flags 0 mat 0
<124,5> <132,5> <131,5>
Face verts 3 flags 0 mat 0
<124,5> <125,5> <132,5>
Face verts 3 flags 0 mat 0
<126,0> <134,0> <133,0>
Face verts 3 flags 0 mat 0
<126,0> <127,0> <134,0>
Face verts 3 flags 0 mat 0
<127,1> <128,1> <134,1>
Face verts 3 flags 0 mat 0
<134,1> <128,1> <135,1>
Face verts 3 flags 0 mat 0
<128,2> <136,2> <135,2>
Face verts 3 flags 0 mat 0
<128,2> <129,2> <136,2>
Face verts 3 flags 0 mat 0
<129,3> <130,3> <136,3>
Face verts 3 flags 0 mat 0
<136,3> <130,3> <137,3>
Face verts 3 flags 0 mat 0
<130,4> <138,4> <137,4>
Face verts 3 flags 0 mat 0
<130,4> <131,4> <138,4>
Face verts 3 flags 0 mat 0
<131,5> <132,5> <138,5>
Face verts 3 flags 0 mat 0
<138,5> <132,5> <139,5>
Face verts 3 flags 0 mat 0
<133,0> <134,0> <140,0>
Face verts 3 flags 0 mat 0
<140,0> <134,0> <141,0>
Face verts 3 flags 0 mat 0
<134,1> <142,1> <141,1>
Face verts 3 flags 0 mat 0
<134,1> <135,1> <142,1>
Face verts 3 flags 0 mat 0
<135,2> <136,2> <142,2>
Face verts 3 flags 0 mat 0
<142,2> <136,2> <143,2>
Face verts 3 flags 0 mat 0
<136,3> <144,3> <143,3>
Face verts 3 flags 0 mat 0
<136,3> <137,3> <144,3>
Face verts 3 flags 0 mat 0
<137,4> <138,4> <144,4>
Face verts 3 flags 0 mat 0
<144,4> <138,4> <145,4>
Face verts 3 flags 0 mat 0
<138,5> <146,5> <145,5>
Face verts 3 flags 0 mat 0
<138,5> <139,5> <146,5>
Face verts 3 flags 0 mat 0
<140,0> <148,0> <147,0>
Face verts 3 flags 0 mat 0
<140,0> <141,0> <148,0>
Face verts 3 flags 0 mat 0
<141,1> <142,1> <148,1>
Face verts 3 flags 0 mat 0
<148,1> <142,1> <149,1>
Face verts 3 flags 0 mat 0
<142,2> <150,2> <149,2>
Face verts 3 flags 0 mat 0
<142,2> <143,2> <150,2>
Face verts 3 flags 0 mat 0
<143,3> <144,3> <150,3>
Face verts 3 flags 0 mat 0
<150,3> <144,3> <151,3>
Face verts 3 flags 0 mat 0
<144,4> <152,4> <151,4>
Face verts 3 flags 0 mat 0
<144,4> <145,4> <152,4>
Face verts 3 flags 0 mat 0
<145,5> <146,5> <152,5>
Face verts 3 flags 0 mat 0
<152,5> <146,5> <153,5>
Face verts 3 flags 0 mat 0
<147,0> <148,0> <0,0>
Face verts 3 flags 0 mat 0
<0,0> <148,0> <1,0>
Face verts 3 flags 0 mat 0
<148,1> <2,1> <1,1>
Face verts 3 flags 0 mat 0
<148,1> <149,1> <2,1>
Face verts 3 flags 0 mat 0
<149,2> <150,2> <2,2>
Face verts 3 flags 0 mat 0
<2,2> <150,2> <3,2>
Face verts 3 flags 0 mat 0
<150,3> <4,3> <3,3>
Face verts 3 flags 0 mat 0
<150,3> <151,3> <4,3>
Face verts 3 flags 0 mat 0
<151,4> <152,4> <4,4>
Face verts 3 flags 0 mat 0
<4,4> <152,4> <5,4>
Face verts 3 flags 0 mat 0
<152,5> <6,5> <5,5>
Face verts 3 flags 0 mat 0
<152,5> <153,5> <6,5>
Face verts 3 flags 0 mat 1
<154,6> <156,6> <155,6>
Face verts 3 flags 0 mat 1
<157,7> <155,7> <158,7>
Face verts 3 flags 0 mat 1
<159,8> <158,8> <156,8>
Face verts 3 flags 0 mat 1
<155,9> <156,9> <158,9>
Face verts 3 flags 0 mat 1
<154,10> <160,10> <156,10>
Face verts 3 flags 0 mat 1
<159,11> <156,11> <161,11>
Face verts 3 flags 0 mat 1
<162,10> <161,10> <160,10>
Face verts 3 flags 0 mat 1
<156,6> <160,6> <161,6>
Face verts 3 flags 0 mat 1
<154,12> <163,12> <160,12>
Face verts 3 flags 0 mat 1
<162,13> <160,13> <164,13>
Face verts 3 flags 0 mat 1
<165,14> <164,14> <163,14>
Face verts 3 flags 0 mat 1
<160,15> <163,15> <164,15>
Face verts 3 flags 0 mat 1
<154,13> <166,13> <163,13>
Face verts 3 flags 0 mat 1
<165,14> <163,14> <167,14>
Face verts 3 flags 0 mat 1
<168,15> <167,15> <166,15>
Face verts 3 flags 0 mat 1
<163,16> <166,16> <167,16>
Face verts 3 flags 0 mat 1
<154,17> <155,17> <166,17>
Face verts 3 flags 0 mat 1
<168,18> <166,18> <169,18>
Face verts 3 flags 0 mat 1
<157,19> <169,19> <155,19>
Face verts 3 flags 0 mat 1
<166,10> <155,10> <169,10>
Face verts 3 flags 0 mat 1
<162,20> <170,20> <161,20>
Face verts 3 flags 0 mat 1
<159,21> <161,21> <171,21>
Face verts 3 flags 0 mat 1
<172,22> <171,22> <170,22>
Face verts 3 flags 0 mat 1
<161,23> <170,23> <171,23>
Face verts 3 flags 0 mat 1
<159,24> <173,24> <158,24>
Face verts 3 flags 0 mat 1
<157,25> <158,25> <174,25>
Face verts 3 flags 0 mat 1
<175,26> <174,26> <173,26>
Face verts 3 flags 0 mat 1
<158,24> <173,24> <174,24>
Face verts 3 flags 0 mat 1
<157,19> <176,19> <169,19>
Face verts 3 flags 0 mat 1
<168,18> <169,18> <177,18>
Face verts 3 flags 0 mat 1
<178,10> <177,10> <176,10>
Face verts 3 flags 0 mat 1
<169,10> <176,10> <177,10>
Face verts 3 flags 0 mat 1
<168,14> <179,14> <167,14>
Face verts 3 flags 0 mat 1
<165,14> <180,14> <164,14>
Face verts 3 flags 0 mat 1
<162,13> <164,13> <181,13>
Face verts 3 flags 0 mat 1
<182,14> <181,14> <180,14>
Face verts 3 flags 0 mat 1
<164,14> <180,14> <181,14>
Face verts 3 flags 0 mat 1
<183,10> <185,10> <184,10>
Face verts 3 flags 0 mat 1
<172,19> <184,19> <186,19>
Face verts 3 flags 0 mat 1
<175,27> <186,27> <185,27>
Face verts 3 flags 0 mat 1
<184,19> <185,19> <186,19>
Face verts 3 flags 0 mat 1
<183,17> <187,17> <185,17>
Face verts 3 flags 0 mat 1
<175,28> <185,28> <188,28>
Face verts 3 flags 0 mat 1
<178,20> <188,20> <187,20>
Face verts 3 flags 0 mat 1
<185,19> <187,19> <188,19>
Face verts 3 flags 0 mat 1
<183,13> <189,13> <187,13>
Face verts 3 flags 0 mat 1
<178,18> <187,18> <190,18>
Face verts 3 flags 0 mat 1
<191,14> <190,14> <189,14>
Face verts 3 flags 0 mat 1
<187,15> <189,15> <190,15>
Face verts 3 flags 0 mat 1
<183,29> <192,29> <189,29>
Face verts 3 flags 0 mat 1
<189,14> <192,14> <193,14>
Face verts 3 flags 0 mat 1
<183,30> <184,30> <192,30>
Face verts 3 flags 0 mat 1
<182,29> <192,29> <194,29>
Face verts 3 flags 0 mat 1
<172,20> <194,20> <184,20>
Face verts 3 flags 0 mat 1
<192,18> <184,18> <194,18>
Face verts 3 flags 0 mat 1
<175,31> <173,31> <186,31>
Face verts 3 flags 0 mat 1
<172,32> <186,32> <171,32>
Face verts 3 flags 0 mat 1
<159,33> <171,33> <173,33>
Face verts 3 flags 0 mat 1
<186,34> <173,34> <171,34>
Face verts 3 flags 0 mat 1
<178,19> <176,19> <188,19>
Face verts 3 flags 0 mat 1
<175,25> <188,25> <174,25>
Face verts 3 flags 0 mat 1
<157,7> <174,7> <176,7>
Face verts 3 flags 0 mat 1
<188,28> <176,28> <174,28>
Face verts 3 flags 0 mat 1
<191,14> <179,14> <190,14>
Face verts 3 flags 0 mat 1
<178,12> <190,12> <177,12>
Face verts 3 flags 0 mat 1
<168,15> <177,15> <179,15>
Face verts 3 flags 0 mat 1
<190,15> <179,15> <177,15>
Face verts 3 flags 0 mat 1
<172,20> <170,20> <194,20>
Face verts 3 flags 0 mat 1
<182,15> <194,15> <181,15>
Face verts 3 flags 0 mat 1
<162,35> <181,35> <170,35>
Face verts 3 flags 0 mat 1
<194,35> <170,35> <181,35>
Face verts 3 flags 0 mat 1
<195,36> <197,36> <196,36>
Face verts 3 flags 0 mat 1
<198,37> <196,37> <199,37>
Face verts 3 flags 0 mat 1
<200,38> <199,38> <197,38>
Face verts 3 flags 0 mat 1
<196,39> <197,39> <199,39>
Face verts 3 flags 0 mat 1
<195,20> <201,20> <197,20>
Face verts 3 flags 0 mat 1
<200,40> <197,40> <202,40>
Face verts 3 flags 0 mat 1
<203,6> <202,6> <201,6>
Face verts 3 flags 0 mat 1
<197,41> <201,41> <202,41>
Face verts 3 flags 0 mat 1
<195,42> <204,42> <201,42>
Face verts 3 flags 0 mat 1
<203,35> <201,35> <205,35>
Face verts 3 flags 0 mat 1
<201,12> <204,12> <205,12>
Face verts 3 flags 0 mat 1
<195,42> <206,42> <204,42>
Face verts 3 flags 0 mat 1
<207,43> <208,43> <206,43>
Face verts 3 flags 0 mat 1
<204,15> <206,15> <208,15>
Face verts 3 flags 0 mat 1
<195,6> <196,6> <206,6>
Face verts 3 flags 0 mat 1
<207,35> <206,35> <209,35>
Face verts 3 flags 0 mat 1
<198,20> <209,20> <196,20>
Face verts 3 flags 0 mat 1
<206,6> <196,6> <209,6>
Face verts 3 flags 0 mat 1
<203,20> <210,20> <202,20>
Face verts 3 flags 0 mat 1
<200,40> <202,40> <211,40>
Face verts 3 flags 0 mat 1
<212,44> <211,44> <210,44>
Face verts 3 flags 0 mat 1
<202,45> <210,45> <211,45>
Face verts 3 flags 0 mat 1
<200,38> <213,38> <199,38>
Face verts 3 flags 0 mat 1
<198,46> <199,46> <214,46>
Face verts 3 flags 0 mat 1
<215,38> <214,38> <213,38>
Face verts 3 flags 0 mat 1
<199,38> <213,38> <214,38>
Face verts 3 flags 0 mat 1
<198,20> <216,20> <209,20>
Face verts 3 flags 0 mat 1
<207,18> <209,18> <217,18>
Face verts 3 flags 0 mat 1
<218,6> <217,6> <216,6>
Face verts 3 flags 0 mat 1
<209,20> <216,20> <217,20>
Face verts 3 flags 0 mat 1
<203,18> <205,18> <219,18>
Face verts 3 flags 0 mat 1
<220,47> <222,47> <221,47>
Face verts 3 flags 0 mat 1
<212,48> <221,48> <223,48>
Face verts 3 flags 0 mat 1
<215,46> <223,46> <222,46>
Face verts 3 flags 0 mat 1
<221,37> <222,37> <223,37>
Face verts 3 flags 0 mat 1
<220,6> <224,6> <222,6>
Face verts 3 flags 0 mat 1
<215,49> <222,49> <225,49>
Face verts 3 flags 0 mat 1
<218,20> <225,20> <224,20>
Face verts 3 flags 0 mat 1
<222,41> <224,41> <225,41>
Face verts 3 flags 0 mat 1
<220,42> <226,42> <224,42>
Face verts 3 flags 0 mat 1
<218,42> <224,42> <227,42>
Face verts 3 flags 0 mat 1
<224,12> <226,12> <227,12>
Face verts 3 flags 0 mat 1
<220,35> <228,35> <226,35>
Face verts 3 flags 0 mat 1
<220,6> <221,6> <228,6>
Face verts 3 flags 0 mat 1
<229,18> <228,18> <230,18>
Face verts 3 flags 0 mat 1
<212,10> <230,10> <221,10>
Face verts 3 flags 0 mat 1
<228,6> <221,6> <230,6>
Face verts 3 flags 0 mat 1
<215,38> <213,38> <223,38>
Face verts 3 flags 0 mat 1
<212,50> <223,50> <211,50>
Face verts 3 flags 0 mat 1
<200,38> <211,38> <213,38>
Face verts 3 flags 0 mat 1
<223,38> <213,38> <211,38>
Face verts 3 flags 0 mat 1
<218,7> <216,7> <225,7>
Face verts 3 flags 0 mat 1
<215,38> <225,38> <214,38>
Face verts 3 flags 0 mat 1
<198,51> <214,51> <216,51>
Face verts 3 flags 0 mat 1
<225,52> <216,52> <214,52>
Face verts 3 flags 0 mat 1
<218,35> <227,35> <217,35>
Face verts 3 flags 0 mat 1
<212,20> <210,20> <230,20>
Face verts 3 flags 0 mat 1
<229,18> <230,18> <219,18>
Face verts 3 flags 0 mat 1
<203,20> <219,20> <210,20>
Face verts 3 flags 0 mat 1
<230,6> <210,6> <219,6>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\islet.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "plastic"
mat# 1
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\islet.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "matte"
