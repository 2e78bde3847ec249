# reef: made by art/build.sh, do not edit
Name reef
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 257
-1.4532 1.71 0
-2.1058 1.5498 0.2603
-1.1062 1.5996 0.3625
-2.864 1.2873 0.5542
-1.9654 1.6736 0.7611
-0.9048 1.7227 0.7874
-3.4358 0 1.1655
-2.4849 0.4135 1.2431
-3.1844 0.6977 0.8201
-1.9011 0.8545 1.6107
-2.4476 1.1002 1.1018
0 1.0184 1.1887
-0.4942 1.5523 1.1341
-0.8601 1.0443 1.4879
-1.6895 1.6981 1.388
-0.6943 1.7775 0
-0.422 1.7967 0.3827
0 1.9211 0
0.4016 1.2616 0.8557
0.7652 1.457 0.6275
0 1.5246 0.6544
1.5632 1.8396 0
0.8188 2.0963 0
1.1259 1.628 0.3807
0.3969 1.6899 0.3474
-1.4055 2.0323 -0.4196
-0.5226 2.2251 -0.4204
1.4446 2.0889 -0.425
0.5599 2.3836 -0.4344
-2.5777 1.8971 -0.3433
-3.3791 1.5188 -0.6561
-3.459 1.5547 0
-3.7133 0 0
-3.3884 0.6811 -0.2962
-3.5087 0 -0.4555
-3.8609 0 0.6048
-4.0607 0.8163 0.3852
1.8018 1.326 0.254
1.6561 1.4102 0.6496
2.1944 0.9863 0.4777
0.6411 0.7784 1.1026
1.2583 0.5656 1.0919
1.1615 1.1674 0.9685
2.2873 0 0.8041
2.4078 0.5276 0.7295
1.8548 0.3086 1.0283
1.9763 0.8883 0.9173
0 0.4716 1.1845
-0.8295 0.3728 1.5933
0 0 1.3818
-2.6437 -0.4399 1.3694
-1.3863 -0.6231 1.1932
-1.8854 0 1.6048
0 -1.1146 1.2481
0 -0.5774 1.4331
-0.7155 -0.8687 1.2237
-0.8263 -0.3714 1.5874
-3.24 -0.7099 0.8454
-3.6099 -0.7256 0.3674
-3.0009 -1.3488 0.7092
-3.1949 -0.6422 -0.2447
-2.0448 -2.4062 0.1533
-2.6036 -1.9161 0.4007
-2.5943 -1.9092 -0.1533
-3.0501 -1.371 0.0662
-3.1172 -1.4011 -0.5004
2.0618 1.5173 -0.2318
1.3239 -1.5579 0
2.2564 -1.6605 0.3247
1.2528 -1.8115 0.3984
2.5351 -1.1395 0.575
1.7141 -1.4596 0.6982
0.7596 -1.4463 0.6587
1.8837 -0.3134 1.0517
2.3889 -0.5234 0.7273
1.3724 -0.6168 1.188
1.9957 -0.897 0.9333
0.4269 -1.3411 0.9434
0.7641 -0.9278 1.2766
1.2156 -1.2217 1.0451
0.6492 -1.662 0
0.4217 -1.7953 0.3826
0 -2.065 0.0348
-0.3952 -1.2416 0.8493
-0.9448 -1.7989 0.8032
0 -1.4405 0.643
-0.9657 -2.4722 0.1057
-1.7501 -2.5306 0.6918
-0.5696 -2.425 0.5647
1.3675 -1.9773 -0.4143
0.5208 -2.2173 -0.3999
-1.6861 -2.438 -0.4243
-0.6024 -2.5649 -0.4359
2.0666 -1.5209 -0.2118
2.566 -1.1534 -0.4516
2.6191 -1.1772 0.0421
2.8184 0 0.1678
2.8525 -0.5734 -0.113
2.8108 0 -0.2572
2.5402 -0.5566 -0.5206
2.5254 0 0.4991
2.7197 -0.5467 0.3321
0.6391 -0.2873 1.2092
1.4376 0 1.2124
0.6507 0.2925 1.219
-2.0701 -1.7627 0.827
-1.1042 -1.1098 0.901
-2.0175 -0.9068 0.8941
2.2407 0.4504 0.3131
2.2437 1.0085 -0.4195
2.4265 0.4878 -0.0961
2.6074 0.5713 -0.5317
2.3055 1.0363 0.0398
1.3156 1.4195 -0.1
1.0965 1.3046 0.3132
1.3184 1.6022 0.4676
0.8891 1.1415 0.5535
1.1231 1.3884 0.9172
1.4908 1.5285 1.0103
0.5627 0.6 1.1848
0.8174 0.8147 1.6207
0.6135 0.9359 0.9995
1.1847 0.9831 1.7697
0.8618 1.1561 1.3943
1.9 1.1574 1.5997
1.7327 1.2264 1.0602
1.5379 1.1239 1.9015
1.382 1.2205 1.2817
1.4989 1.8237 -0.1
1.6708 1.763 0.4838
1.9 2.1379 -0.1
2.0967 1.3362 1.3117
2.3677 1.6611 1.1078
1.9 1.4933 0.9922
2.8158 1.8842 -0.1
2.3053 1.8365 -0.1
2.6794 1.9429 0.6842
2.1537 1.8872 0.5232
1.3646 1.5225 -0.6144
1.6472 1.8828 -0.7113
2.5691 1.753 -0.7054
2.157 1.9037 -0.7161
0.9788 1.4079 -0.3441
0.7188 1.2327 -0.7417
0.7089 1.238 -0.0361
0.5275 0.6 -0.0117
0.4933 0.937 -0.3847
0.6158 0.6 -0.6795
0.579 0.6 0.5206
0.6137 0.9081 0.375
3.2577 1.7907 0.4431
3.1009 1.8185 1.4761
3.2979 1.3488 0.8849
2.2548 1.1133 1.873
2.6814 1.0185 2.0775
2.6188 1.4609 1.8385
3.334 0.6 1.4885
3.282 0.9608 1.0949
3.0655 0.8311 1.9131
3.1642 1.2771 1.737
1.9 0.9691 2.4501
1.4932 0.8179 2.3466
1.9 0.6 2.4318
0.7972 0.3813 1.6351
1.162 0.2047 1.8475
1.2104 0.6 1.6658
1.9 -0.0144 1.8783
1.9 0.2782 2.1084
1.5178 0.0469 2.0807
1.551 0.4131 2.0735
0.7487 0.2994 0.9064
0.6793 0.3076 0.3669
0.9525 0.0925 0.5051
0.5752 0.2827 -0.343
1.2556 -0.3037 -0.0901
1.0864 -0.1135 0.3389
0.9445 -0.238 -0.335
0.7927 0.0069 -0.0145
0.8265 0.025 -0.712
3.0939 1.647 -0.5853
2.701 -0.5233 -0.0953
3.0503 -0.4088 0.4086
2.6031 -0.6115 0.6881
3.2682 -0.1329 0.9078
2.9246 -0.4396 1.2462
2.3649 -0.4548 1.2746
3.1688 0.3484 2.07
3.3237 0.2283 1.1523
2.7493 0.1451 2.1956
3.1599 -0.0748 1.7444
2.1174 -0.214 1.5347
2.307 0.0112 2.1442
2.575 -0.2084 1.7785
2.3164 -0.6703 -0.1
2.1547 -0.6922 0.642
1.9 -0.5888 -0.1
1.6836 -0.21 1.5313
1.4871 -0.3368 1.0388
1.9 -0.392 1.1634
1.5366 -0.5086 -0.1
1.4215 -0.2245 0.4231
1.663 -0.6023 0.5634
2.5503 -0.5205 -0.6972
2.1485 -0.6607 -0.7063
1.3131 -0.4112 -0.6699
1.6643 -0.5956 -0.6913
2.9696 -0.338 -0.4042
3.0338 -0.0073 -0.7286
3.3013 -0.1506 -0.1
3.1874 0.6 -0.1
3.2214 0.2835 -0.4706
3.244 0.6 -0.6917
3.1451 0.6 0.4715
3.3069 0.263 0.3419
2.3623 0.3524 2.6883
2.7701 0.6 2.3023
2.2876 0.8076 2.2549
1.1725 -0.1382 0.8624
1.2555 -0.1719 1.6013
1.0118 0.1242 1.1098
3.2518 0.9238 0.2904
3.2175 0.9156 -0.496
3.285 1.3418 -0.1
3.0757 1.2297 -0.7401
3.5951 0.7151 0.27
3.2407 0.6446 0.27
3.1765 2.1225 0.27
2.8357 1.8948 0.27
1.5529 2.324 0.27
1.3631 2.0401 0.27
0.3976 1.9988 0.27
0.3537 1.7781 0.27
-0.3906 1.9636 0.27
-0.3394 1.7064 0.27
-1.2162 1.8201 0.27
-1.0728 1.6056 0.27
-3.1034 2.0736 0.27
-2.7504 1.8378 0.27
-3.9822 0.7921 0.27
-3.608 0.7177 0.27
-3.7801 -0.7519 0.27
-3.4316 -0.6826 0.27
-2.9454 -1.968 0.27
-2.5772 -1.722 0.27
-1.8429 -2.7581 0.27
-1.632 -2.4424 0.27
-0.5286 -2.6574 0.27
-0.4747 -2.3865 0.27
0.415 -2.0864 0.27
0.3533 -1.7761 0.27
1.2362 -1.85 0.27
1.096 -1.6402 0.27
2.4616 -1.6448 0.27
2.1993 -1.4696 0.27
3.3511 -0.6666 0.27
3.0051 -0.5978 0.27
0 0 5.907
Texture Vertices 1
0 0
Faces 429
Face verts 3 flags 0 mat 0
<0,0> <2,0> <1,0>
Face verts 3 flags 0 mat 1
<3,0> <1,0> <4,0>
Face verts 3 flags 0 mat 1
<5,0> <4,0> <2,0>
Face verts 3 flags 0 mat 1
<1,0> <2,0> <4,0>
Face verts 3 flags 0 mat 1
<6,0> <8,0> <7,0>
Face verts 3 flags 0 mat 1
<9,0> <7,0> <10,0>
Face verts 3 flags 0 mat 1
<3,0> <10,0> <8,0>
Face verts 3 flags 0 mat 1
<7,0> <8,0> <10,0>
Face verts 3 flags 0 mat 1
<11,0> <13,0> <12,0>
Face verts 3 flags 0 mat 1
<5,0> <12,0> <14,0>
Face verts 3 flags 0 mat 1
<9,0> <14,0> <13,0>
Face verts 3 flags 0 mat 1
<12,0> <13,0> <14,0>
Face verts 3 flags 0 mat 1
<3,0> <4,0> <10,0>
Face verts 3 flags 0 mat 1
<9,0> <10,0> <14,0>
Face verts 3 flags 0 mat 1
<5,0> <14,0> <4,0>
Face verts 3 flags 0 mat 1
<10,0> <4,0> <14,0>
Face verts 3 flags 0 mat 0
<0,0> <15,0> <2,0>
Face verts 3 flags 0 mat 1
<5,0> <2,0> <16,0>
Face verts 3 flags 0 mat 0
<17,0> <16,0> <15,0>
Face verts 3 flags 0 mat 0
<2,0> <15,0> <16,0>
Face verts 3 flags 0 mat 1
<11,0> <12,0> <18,0>
Face verts 3 flags 0 mat 1
<19,0> <18,0> <20,0>
Face verts 3 flags 0 mat 1
<5,0> <20,0> <12,0>
Face verts 3 flags 0 mat 1
<18,0> <12,0> <20,0>
Face verts 3 flags 0 mat 0
<21,0> <23,0> <22,0>
Face verts 3 flags 0 mat 0
<17,0> <22,0> <24,0>
Face verts 3 flags 0 mat 1
<19,0> <24,0> <23,0>
Face verts 3 flags 0 mat 0
<22,0> <23,0> <24,0>
Face verts 3 flags 0 mat 1
<5,0> <16,0> <20,0>
Face verts 3 flags 0 mat 1
<19,0> <20,0> <24,0>
Face verts 3 flags 0 mat 0
<17,0> <24,0> <16,0>
Face verts 3 flags 0 mat 1
<20,0> <16,0> <24,0>
Face verts 3 flags 0 mat 0
<0,0> <25,0> <15,0>
Face verts 3 flags 0 mat 0
<17,0> <15,0> <26,0>
Face verts 3 flags 0 mat 0
<15,0> <25,0> <26,0>
Face verts 3 flags 0 mat 0
<21,0> <22,0> <27,0>
Face verts 3 flags 0 mat 0
<17,0> <28,0> <22,0>
Face verts 3 flags 0 mat 0
<27,0> <22,0> <28,0>
Face verts 3 flags 0 mat 0
<17,0> <26,0> <28,0>
Face verts 3 flags 0 mat 0
<0,0> <29,0> <25,0>
Face verts 3 flags 0 mat 0
<0,0> <1,0> <29,0>
Face verts 3 flags 0 mat 0
<30,0> <29,0> <31,0>
Face verts 3 flags 0 mat 1
<3,0> <31,0> <1,0>
Face verts 3 flags 0 mat 0
<29,0> <1,0> <31,0>
Face verts 3 flags 0 mat 0
<32,0> <34,0> <33,0>
Face verts 3 flags 0 mat 1
<6,0> <35,0> <8,0>
Face verts 3 flags 0 mat 1
<3,0> <8,0> <36,0>
Face verts 3 flags 0 mat 1
<32,0> <36,0> <35,0>
Face verts 3 flags 0 mat 1
<8,0> <35,0> <36,0>
Face verts 3 flags 0 mat 0
<30,0> <31,0> <33,0>
Face verts 3 flags 0 mat 0
<32,0> <33,0> <36,0>
Face verts 3 flags 0 mat 1
<3,0> <36,0> <31,0>
Face verts 3 flags 0 mat 0
<33,0> <31,0> <36,0>
Face verts 3 flags 0 mat 0
<21,0> <37,0> <23,0>
Face verts 3 flags 0 mat 1
<19,0> <23,0> <38,0>
Face verts 3 flags 0 mat 1
<39,0> <38,0> <37,0>
Face verts 3 flags 0 mat 1
<23,0> <37,0> <38,0>
Face verts 3 flags 0 mat 1
<11,0> <18,0> <40,0>
Face verts 3 flags 0 mat 1
<41,0> <40,0> <42,0>
Face verts 3 flags 0 mat 1
<19,0> <42,0> <18,0>
Face verts 3 flags 0 mat 1
<40,0> <18,0> <42,0>
Face verts 3 flags 0 mat 1
<43,0> <45,0> <44,0>
Face verts 3 flags 0 mat 1
<39,0> <44,0> <46,0>
Face verts 3 flags 0 mat 1
<41,0> <46,0> <45,0>
Face verts 3 flags 0 mat 1
<44,0> <45,0> <46,0>
Face verts 3 flags 0 mat 1
<19,0> <38,0> <42,0>
Face verts 3 flags 0 mat 1
<41,0> <42,0> <46,0>
Face verts 3 flags 0 mat 1
<39,0> <46,0> <38,0>
Face verts 3 flags 0 mat 1
<42,0> <38,0> <46,0>
Face verts 3 flags 0 mat 1
<11,0> <47,0> <13,0>
Face verts 3 flags 0 mat 1
<9,0> <13,0> <48,0>
Face verts 3 flags 0 mat 1
<49,0> <48,0> <47,0>
Face verts 3 flags 0 mat 1
<13,0> <47,0> <48,0>
Face verts 3 flags 0 mat 1
<6,0> <7,0> <50,0>
Face verts 3 flags 0 mat 1
<51,0> <50,0> <52,0>
Face verts 3 flags 0 mat 1
<9,0> <52,0> <7,0>
Face verts 3 flags 0 mat 1
<50,0> <7,0> <52,0>
Face verts 3 flags 0 mat 1
<53,0> <55,0> <54,0>
Face verts 3 flags 0 mat 1
<49,0> <54,0> <56,0>
Face verts 3 flags 0 mat 1
<51,0> <56,0> <55,0>
Face verts 3 flags 0 mat 1
<54,0> <55,0> <56,0>
Face verts 3 flags 0 mat 1
<9,0> <48,0> <52,0>
Face verts 3 flags 0 mat 1
<51,0> <52,0> <56,0>
Face verts 3 flags 0 mat 1
<49,0> <56,0> <48,0>
Face verts 3 flags 0 mat 1
<52,0> <48,0> <56,0>
Face verts 3 flags 0 mat 1
<6,0> <57,0> <35,0>
Face verts 3 flags 0 mat 1
<32,0> <35,0> <58,0>
Face verts 3 flags 0 mat 1
<59,0> <58,0> <57,0>
Face verts 3 flags 0 mat 1
<35,0> <57,0> <58,0>
Face verts 3 flags 0 mat 0
<32,0> <60,0> <34,0>
Face verts 3 flags 0 mat 0
<61,0> <63,0> <62,0>
Face verts 3 flags 0 mat 1
<59,0> <62,0> <64,0>
Face verts 3 flags 0 mat 0
<65,0> <64,0> <63,0>
Face verts 3 flags 0 mat 0
<62,0> <63,0> <64,0>
Face verts 3 flags 0 mat 0
<32,0> <58,0> <60,0>
Face verts 3 flags 0 mat 0
<65,0> <60,0> <64,0>
Face verts 3 flags 0 mat 1
<59,0> <64,0> <58,0>
Face verts 3 flags 0 mat 0
<60,0> <58,0> <64,0>
Face verts 3 flags 0 mat 0
<21,0> <27,0> <66,0>
Face verts 3 flags 0 mat 0
<67,0> <69,0> <68,0>
Face verts 3 flags 0 mat 1
<70,0> <68,0> <71,0>
Face verts 3 flags 0 mat 1
<72,0> <71,0> <69,0>
Face verts 3 flags 0 mat 1
<68,0> <69,0> <71,0>
Face verts 3 flags 0 mat 1
<43,0> <74,0> <73,0>
Face verts 3 flags 0 mat 1
<75,0> <73,0> <76,0>
Face verts 3 flags 0 mat 1
<70,0> <76,0> <74,0>
Face verts 3 flags 0 mat 1
<73,0> <74,0> <76,0>
Face verts 3 flags 0 mat 1
<53,0> <78,0> <77,0>
Face verts 3 flags 0 mat 1
<72,0> <77,0> <79,0>
Face verts 3 flags 0 mat 1
<75,0> <79,0> <78,0>
Face verts 3 flags 0 mat 1
<77,0> <78,0> <79,0>
Face verts 3 flags 0 mat 1
<70,0> <71,0> <76,0>
Face verts 3 flags 0 mat 1
<75,0> <76,0> <79,0>
Face verts 3 flags 0 mat 1
<72,0> <79,0> <71,0>
Face verts 3 flags 0 mat 1
<76,0> <71,0> <79,0>
Face verts 3 flags 0 mat 0
<67,0> <80,0> <69,0>
Face verts 3 flags 0 mat 1
<72,0> <69,0> <81,0>
Face verts 3 flags 0 mat 0
<82,0> <81,0> <80,0>
Face verts 3 flags 0 mat 1
<69,0> <80,0> <81,0>
Face verts 3 flags 0 mat 1
<53,0> <77,0> <83,0>
Face verts 3 flags 0 mat 1
<84,0> <83,0> <85,0>
Face verts 3 flags 0 mat 1
<72,0> <85,0> <77,0>
Face verts 3 flags 0 mat 1
<83,0> <77,0> <85,0>
Face verts 3 flags 0 mat 1
<61,0> <87,0> <86,0>
Face verts 3 flags 0 mat 0
<82,0> <86,0> <88,0>
Face verts 3 flags 0 mat 1
<84,0> <88,0> <87,0>
Face verts 3 flags 0 mat 1
<86,0> <87,0> <88,0>
Face verts 3 flags 0 mat 1
<72,0> <81,0> <85,0>
Face verts 3 flags 0 mat 1
<84,0> <85,0> <88,0>
Face verts 3 flags 0 mat 1
<82,0> <88,0> <81,0>
Face verts 3 flags 0 mat 1
<85,0> <81,0> <88,0>
Face verts 3 flags 0 mat 0
<67,0> <89,0> <80,0>
Face verts 3 flags 0 mat 0
<82,0> <80,0> <90,0>
Face verts 3 flags 0 mat 0
<80,0> <89,0> <90,0>
Face verts 3 flags 0 mat 0
<61,0> <86,0> <91,0>
Face verts 3 flags 0 mat 0
<82,0> <92,0> <86,0>
Face verts 3 flags 0 mat 0
<91,0> <86,0> <92,0>
Face verts 3 flags 0 mat 0
<82,0> <90,0> <92,0>
Face verts 3 flags 0 mat 0
<67,0> <93,0> <89,0>
Face verts 3 flags 0 mat 0
<67,0> <68,0> <93,0>
Face verts 3 flags 0 mat 0
<94,0> <93,0> <95,0>
Face verts 3 flags 0 mat 1
<70,0> <95,0> <68,0>
Face verts 3 flags 0 mat 0
<93,0> <68,0> <95,0>
Face verts 3 flags 0 mat 0
<96,0> <98,0> <97,0>
Face verts 3 flags 0 mat 0
<94,0> <97,0> <99,0>
Face verts 3 flags 0 mat 0
<98,0> <99,0> <97,0>
Face verts 3 flags 0 mat 1
<43,0> <100,0> <74,0>
Face verts 3 flags 0 mat 1
<70,0> <74,0> <101,0>
Face verts 3 flags 0 mat 1
<96,0> <101,0> <100,0>
Face verts 3 flags 0 mat 1
<74,0> <100,0> <101,0>
Face verts 3 flags 0 mat 0
<94,0> <95,0> <97,0>
Face verts 3 flags 0 mat 0
<96,0> <97,0> <101,0>
Face verts 3 flags 0 mat 1
<70,0> <101,0> <95,0>
Face verts 3 flags 0 mat 0
<97,0> <95,0> <101,0>
Face verts 3 flags 0 mat 1
<53,0> <54,0> <78,0>
Face verts 3 flags 0 mat 1
<75,0> <78,0> <102,0>
Face verts 3 flags 0 mat 1
<49,0> <102,0> <54,0>
Face verts 3 flags 0 mat 1
<78,0> <54,0> <102,0>
Face verts 3 flags 0 mat 1
<43,0> <73,0> <45,0>
Face verts 3 flags 0 mat 1
<41,0> <45,0> <103,0>
Face verts 3 flags 0 mat 1
<75,0> <103,0> <73,0>
Face verts 3 flags 0 mat 1
<45,0> <73,0> <103,0>
Face verts 3 flags 0 mat 1
<11,0> <40,0> <47,0>
Face verts 3 flags 0 mat 1
<49,0> <47,0> <104,0>
Face verts 3 flags 0 mat 1
<41,0> <104,0> <40,0>
Face verts 3 flags 0 mat 1
<47,0> <40,0> <104,0>
Face verts 3 flags 0 mat 1
<75,0> <102,0> <103,0>
Face verts 3 flags 0 mat 1
<41,0> <103,0> <104,0>
Face verts 3 flags 0 mat 1
<49,0> <104,0> <102,0>
Face verts 3 flags 0 mat 1
<103,0> <102,0> <104,0>
Face verts 3 flags 0 mat 1
<61,0> <62,0> <87,0>
Face verts 3 flags 0 mat 1
<84,0> <87,0> <105,0>
Face verts 3 flags 0 mat 1
<59,0> <105,0> <62,0>
Face verts 3 flags 0 mat 1
<87,0> <62,0> <105,0>
Face verts 3 flags 0 mat 1
<53,0> <83,0> <55,0>
Face verts 3 flags 0 mat 1
<51,0> <55,0> <106,0>
Face verts 3 flags 0 mat 1
<84,0> <106,0> <83,0>
Face verts 3 flags 0 mat 1
<55,0> <83,0> <106,0>
Face verts 3 flags 0 mat 1
<6,0> <50,0> <57,0>
Face verts 3 flags 0 mat 1
<59,0> <57,0> <107,0>
Face verts 3 flags 0 mat 1
<51,0> <107,0> <50,0>
Face verts 3 flags 0 mat 1
<57,0> <50,0> <107,0>
Face verts 3 flags 0 mat 1
<84,0> <105,0> <106,0>
Face verts 3 flags 0 mat 1
<51,0> <106,0> <107,0>
Face verts 3 flags 0 mat 1
<59,0> <107,0> <105,0>
Face verts 3 flags 0 mat 1
<106,0> <105,0> <107,0>
Face verts 3 flags 0 mat 0
<61,0> <91,0> <63,0>
Face verts 3 flags 0 mat 1
<43,0> <44,0> <100,0>
Face verts 3 flags 0 mat 1
<96,0> <100,0> <108,0>
Face verts 3 flags 0 mat 1
<39,0> <108,0> <44,0>
Face verts 3 flags 0 mat 1
<100,0> <44,0> <108,0>
Face verts 3 flags 0 mat 0
<109,0> <111,0> <110,0>
Face verts 3 flags 0 mat 0
<96,0> <110,0> <98,0>
Face verts 3 flags 0 mat 0
<111,0> <98,0> <110,0>
Face verts 3 flags 0 mat 0
<21,0> <66,0> <37,0>
Face verts 3 flags 0 mat 0
<39,0> <37,0> <112,0>
Face verts 3 flags 0 mat 0
<109,0> <112,0> <66,0>
Face verts 3 flags 0 mat 0
<37,0> <66,0> <112,0>
Face verts 3 flags 0 mat 0
<96,0> <108,0> <110,0>
Face verts 3 flags 0 mat 0
<109,0> <110,0> <112,0>
Face verts 3 flags 0 mat 1
<39,0> <112,0> <108,0>
Face verts 3 flags 0 mat 0
<110,0> <108,0> <112,0>
Face verts 3 flags 0 mat 1
<113,0> <115,0> <114,0>
Face verts 3 flags 0 mat 1
<116,0> <114,0> <117,0>
Face verts 3 flags 0 mat 1
<118,0> <117,0> <115,0>
Face verts 3 flags 0 mat 1
<114,0> <115,0> <117,0>
Face verts 3 flags 0 mat 1
<119,0> <121,0> <120,0>
Face verts 3 flags 0 mat 1
<122,0> <120,0> <123,0>
Face verts 3 flags 0 mat 1
<116,0> <123,0> <121,0>
Face verts 3 flags 0 mat 1
<120,0> <121,0> <123,0>
Face verts 3 flags 0 mat 1
<124,0> <126,0> <125,0>
Face verts 3 flags 0 mat 1
<118,0> <125,0> <127,0>
Face verts 3 flags 0 mat 1
<122,0> <127,0> <126,0>
Face verts 3 flags 0 mat 1
<125,0> <126,0> <127,0>
Face verts 3 flags 0 mat 1
<116,0> <117,0> <123,0>
Face verts 3 flags 0 mat 1
<122,0> <123,0> <127,0>
Face verts 3 flags 0 mat 1
<118,0> <127,0> <117,0>
Face verts 3 flags 0 mat 1
<123,0> <117,0> <127,0>
Face verts 3 flags 0 mat 0
<113,0> <128,0> <115,0>
Face verts 3 flags 0 mat 1
<118,0> <115,0> <129,0>
Face verts 3 flags 0 mat 0
<130,0> <129,0> <128,0>
Face verts 3 flags 0 mat 1
<115,0> <128,0> <129,0>
Face verts 3 flags 0 mat 1
<124,0> <125,0> <131,0>
Face verts 3 flags 0 mat 1
<132,0> <131,0> <133,0>
Face verts 3 flags 0 mat 1
<118,0> <133,0> <125,0>
Face verts 3 flags 0 mat 1
<131,0> <125,0> <133,0>
Face verts 3 flags 0 mat 1
<134,0> <136,0> <135,0>
Face verts 3 flags 0 mat 0
<130,0> <135,0> <137,0>
Face verts 3 flags 0 mat 1
<132,0> <137,0> <136,0>
Face verts 3 flags 0 mat 1
<135,0> <136,0> <137,0>
Face verts 3 flags 0 mat 1
<118,0> <129,0> <133,0>
Face verts 3 flags 0 mat 1
<132,0> <133,0> <137,0>
Face verts 3 flags 0 mat 1
<130,0> <137,0> <129,0>
Face verts 3 flags 0 mat 1
<133,0> <129,0> <137,0>
Face verts 3 flags 0 mat 0
<113,0> <138,0> <128,0>
Face verts 3 flags 0 mat 0
<130,0> <128,0> <139,0>
Face verts 3 flags 0 mat 0
<128,0> <138,0> <139,0>
Face verts 3 flags 0 mat 0
<134,0> <135,0> <140,0>
Face verts 3 flags 0 mat 0
<130,0> <141,0> <135,0>
Face verts 3 flags 0 mat 0
<113,0> <142,0> <138,0>
Face verts 3 flags 0 mat 0
<113,0> <114,0> <142,0>
Face verts 3 flags 0 mat 0
<143,0> <142,0> <144,0>
Face verts 3 flags 0 mat 1
<116,0> <144,0> <114,0>
Face verts 3 flags 0 mat 0
<142,0> <114,0> <144,0>
Face verts 3 flags 0 mat 0
<145,0> <147,0> <146,0>
Face verts 3 flags 0 mat 1
<119,0> <148,0> <121,0>
Face verts 3 flags 0 mat 1
<116,0> <121,0> <149,0>
Face verts 3 flags 0 mat 1
<145,0> <149,0> <148,0>
Face verts 3 flags 0 mat 1
<121,0> <148,0> <149,0>
Face verts 3 flags 0 mat 0
<143,0> <144,0> <146,0>
Face verts 3 flags 0 mat 0
<145,0> <146,0> <149,0>
Face verts 3 flags 0 mat 1
<116,0> <149,0> <144,0>
Face verts 3 flags 0 mat 0
<146,0> <144,0> <149,0>
Face verts 3 flags 0 mat 1
<134,0> <150,0> <136,0>
Face verts 3 flags 0 mat 1
<132,0> <136,0> <151,0>
Face verts 3 flags 0 mat 1
<152,0> <151,0> <150,0>
Face verts 3 flags 0 mat 1
<136,0> <150,0> <151,0>
Face verts 3 flags 0 mat 1
<124,0> <131,0> <153,0>
Face verts 3 flags 0 mat 1
<154,0> <153,0> <155,0>
Face verts 3 flags 0 mat 1
<132,0> <155,0> <131,0>
Face verts 3 flags 0 mat 1
<153,0> <131,0> <155,0>
Face verts 3 flags 0 mat 1
<156,0> <158,0> <157,0>
Face verts 3 flags 0 mat 1
<152,0> <157,0> <159,0>
Face verts 3 flags 0 mat 1
<154,0> <159,0> <158,0>
Face verts 3 flags 0 mat 1
<157,0> <158,0> <159,0>
Face verts 3 flags 0 mat 1
<132,0> <151,0> <155,0>
Face verts 3 flags 0 mat 1
<154,0> <155,0> <159,0>
Face verts 3 flags 0 mat 1
<152,0> <159,0> <151,0>
Face verts 3 flags 0 mat 1
<155,0> <151,0> <159,0>
Face verts 3 flags 0 mat 1
<124,0> <160,0> <126,0>
Face verts 3 flags 0 mat 1
<122,0> <126,0> <161,0>
Face verts 3 flags 0 mat 1
<162,0> <161,0> <160,0>
Face verts 3 flags 0 mat 1
<126,0> <160,0> <161,0>
Face verts 3 flags 0 mat 1
<119,0> <120,0> <163,0>
Face verts 3 flags 0 mat 1
<164,0> <163,0> <165,0>
Face verts 3 flags 0 mat 1
<122,0> <165,0> <120,0>
Face verts 3 flags 0 mat 1
<163,0> <120,0> <165,0>
Face verts 3 flags 0 mat 1
<166,0> <168,0> <167,0>
Face verts 3 flags 0 mat 1
<162,0> <167,0> <169,0>
Face verts 3 flags 0 mat 1
<164,0> <169,0> <168,0>
Face verts 3 flags 0 mat 1
<167,0> <168,0> <169,0>
Face verts 3 flags 0 mat 1
<122,0> <161,0> <165,0>
Face verts 3 flags 0 mat 1
<164,0> <165,0> <169,0>
Face verts 3 flags 0 mat 1
<162,0> <169,0> <161,0>
Face verts 3 flags 0 mat 1
<165,0> <161,0> <169,0>
Face verts 3 flags 0 mat 1
<119,0> <170,0> <148,0>
Face verts 3 flags 0 mat 1
<145,0> <148,0> <171,0>
Face verts 3 flags 0 mat 1
<172,0> <171,0> <170,0>
Face verts 3 flags 0 mat 1
<148,0> <170,0> <171,0>
Face verts 3 flags 0 mat 0
<145,0> <173,0> <147,0>
Face verts 3 flags 0 mat 0
<174,0> <176,0> <175,0>
Face verts 3 flags 0 mat 1
<172,0> <175,0> <177,0>
Face verts 3 flags 0 mat 0
<178,0> <177,0> <176,0>
Face verts 3 flags 0 mat 0
<175,0> <176,0> <177,0>
Face verts 3 flags 0 mat 0
<145,0> <171,0> <173,0>
Face verts 3 flags 0 mat 0
<178,0> <173,0> <177,0>
Face verts 3 flags 0 mat 1
<172,0> <177,0> <171,0>
Face verts 3 flags 0 mat 0
<173,0> <171,0> <177,0>
Face verts 3 flags 0 mat 0
<134,0> <140,0> <179,0>
Face verts 3 flags 0 mat 1
<180,0> <182,0> <181,0>
Face verts 3 flags 0 mat 1
<183,0> <181,0> <184,0>
Face verts 3 flags 0 mat 1
<185,0> <184,0> <182,0>
Face verts 3 flags 0 mat 1
<181,0> <182,0> <184,0>
Face verts 3 flags 0 mat 1
<156,0> <187,0> <186,0>
Face verts 3 flags 0 mat 1
<188,0> <186,0> <189,0>
Face verts 3 flags 0 mat 1
<183,0> <189,0> <187,0>
Face verts 3 flags 0 mat 1
<186,0> <187,0> <189,0>
Face verts 3 flags 0 mat 1
<166,0> <191,0> <190,0>
Face verts 3 flags 0 mat 1
<185,0> <190,0> <192,0>
Face verts 3 flags 0 mat 1
<188,0> <192,0> <191,0>
Face verts 3 flags 0 mat 1
<190,0> <191,0> <192,0>
Face verts 3 flags 0 mat 1
<183,0> <184,0> <189,0>
Face verts 3 flags 0 mat 1
<188,0> <189,0> <192,0>
Face verts 3 flags 0 mat 1
<185,0> <192,0> <184,0>
Face verts 3 flags 0 mat 1
<189,0> <184,0> <192,0>
Face verts 3 flags 0 mat 1
<180,0> <193,0> <182,0>
Face verts 3 flags 0 mat 1
<185,0> <182,0> <194,0>
Face verts 3 flags 0 mat 0
<195,0> <194,0> <193,0>
Face verts 3 flags 0 mat 1
<182,0> <193,0> <194,0>
Face verts 3 flags 0 mat 1
<166,0> <190,0> <196,0>
Face verts 3 flags 0 mat 1
<197,0> <196,0> <198,0>
Face verts 3 flags 0 mat 1
<185,0> <198,0> <190,0>
Face verts 3 flags 0 mat 1
<196,0> <190,0> <198,0>
Face verts 3 flags 0 mat 0
<174,0> <200,0> <199,0>
Face verts 3 flags 0 mat 0
<195,0> <199,0> <201,0>
Face verts 3 flags 0 mat 1
<197,0> <201,0> <200,0>
Face verts 3 flags 0 mat 1
<199,0> <200,0> <201,0>
Face verts 3 flags 0 mat 1
<185,0> <194,0> <198,0>
Face verts 3 flags 0 mat 1
<197,0> <198,0> <201,0>
Face verts 3 flags 0 mat 1
<195,0> <201,0> <194,0>
Face verts 3 flags 0 mat 1
<198,0> <194,0> <201,0>
Face verts 3 flags 0 mat 0
<180,0> <202,0> <193,0>
Face verts 3 flags 0 mat 0
<195,0> <193,0> <203,0>
Face verts 3 flags 0 mat 0
<174,0> <199,0> <204,0>
Face verts 3 flags 0 mat 0
<195,0> <205,0> <199,0>
Face verts 3 flags 0 mat 0
<204,0> <199,0> <205,0>
Face verts 3 flags 0 mat 0
<195,0> <203,0> <205,0>
Face verts 3 flags 0 mat 0
<180,0> <206,0> <202,0>
Face verts 3 flags 0 mat 0
<180,0> <181,0> <206,0>
Face verts 3 flags 0 mat 0
<207,0> <206,0> <208,0>
Face verts 3 flags 0 mat 1
<183,0> <208,0> <181,0>
Face verts 3 flags 0 mat 0
<206,0> <181,0> <208,0>
Face verts 3 flags 0 mat 0
<209,0> <211,0> <210,0>
Face verts 3 flags 0 mat 1
<156,0> <212,0> <187,0>
Face verts 3 flags 0 mat 1
<183,0> <187,0> <213,0>
Face verts 3 flags 0 mat 1
<209,0> <213,0> <212,0>
Face verts 3 flags 0 mat 1
<187,0> <212,0> <213,0>
Face verts 3 flags 0 mat 0
<207,0> <208,0> <210,0>
Face verts 3 flags 0 mat 0
<209,0> <210,0> <213,0>
Face verts 3 flags 0 mat 1
<183,0> <213,0> <208,0>
Face verts 3 flags 0 mat 0
<210,0> <208,0> <213,0>
Face verts 3 flags 0 mat 1
<166,0> <167,0> <191,0>
Face verts 3 flags 0 mat 1
<188,0> <191,0> <214,0>
Face verts 3 flags 0 mat 1
<162,0> <214,0> <167,0>
Face verts 3 flags 0 mat 1
<191,0> <167,0> <214,0>
Face verts 3 flags 0 mat 1
<156,0> <186,0> <158,0>
Face verts 3 flags 0 mat 1
<154,0> <158,0> <215,0>
Face verts 3 flags 0 mat 1
<188,0> <215,0> <186,0>
Face verts 3 flags 0 mat 1
<158,0> <186,0> <215,0>
Face verts 3 flags 0 mat 1
<124,0> <153,0> <160,0>
Face verts 3 flags 0 mat 1
<162,0> <160,0> <216,0>
Face verts 3 flags 0 mat 1
<154,0> <216,0> <153,0>
Face verts 3 flags 0 mat 1
<160,0> <153,0> <216,0>
Face verts 3 flags 0 mat 1
<188,0> <214,0> <215,0>
Face verts 3 flags 0 mat 1
<154,0> <215,0> <216,0>
Face verts 3 flags 0 mat 1
<162,0> <216,0> <214,0>
Face verts 3 flags 0 mat 1
<215,0> <214,0> <216,0>
Face verts 3 flags 0 mat 1
<174,0> <175,0> <200,0>
Face verts 3 flags 0 mat 1
<197,0> <200,0> <217,0>
Face verts 3 flags 0 mat 1
<172,0> <217,0> <175,0>
Face verts 3 flags 0 mat 1
<200,0> <175,0> <217,0>
Face verts 3 flags 0 mat 1
<166,0> <196,0> <168,0>
Face verts 3 flags 0 mat 1
<164,0> <168,0> <218,0>
Face verts 3 flags 0 mat 1
<197,0> <218,0> <196,0>
Face verts 3 flags 0 mat 1
<168,0> <196,0> <218,0>
Face verts 3 flags 0 mat 1
<119,0> <163,0> <170,0>
Face verts 3 flags 0 mat 1
<172,0> <170,0> <219,0>
Face verts 3 flags 0 mat 1
<164,0> <219,0> <163,0>
Face verts 3 flags 0 mat 1
<170,0> <163,0> <219,0>
Face verts 3 flags 0 mat 1
<197,0> <217,0> <218,0>
Face verts 3 flags 0 mat 1
<164,0> <218,0> <219,0>
Face verts 3 flags 0 mat 1
<172,0> <219,0> <217,0>
Face verts 3 flags 0 mat 1
<218,0> <217,0> <219,0>
Face verts 3 flags 0 mat 0
<174,0> <204,0> <176,0>
Face verts 3 flags 0 mat 1
<156,0> <157,0> <212,0>
Face verts 3 flags 0 mat 1
<209,0> <212,0> <220,0>
Face verts 3 flags 0 mat 1
<152,0> <220,0> <157,0>
Face verts 3 flags 0 mat 1
<212,0> <157,0> <220,0>
Face verts 3 flags 0 mat 0
<209,0> <221,0> <211,0>
Face verts 3 flags 0 mat 0
<134,0> <179,0> <150,0>
Face verts 3 flags 0 mat 1
<152,0> <150,0> <222,0>
Face verts 3 flags 0 mat 0
<223,0> <222,0> <179,0>
Face verts 3 flags 0 mat 0
<150,0> <179,0> <222,0>
Face verts 3 flags 0 mat 0
<209,0> <220,0> <221,0>
Face verts 3 flags 0 mat 0
<223,0> <221,0> <222,0>
Face verts 3 flags 0 mat 1
<152,0> <222,0> <220,0>
Face verts 3 flags 0 mat 0
<221,0> <220,0> <222,0>
Face verts 3 flags 0 mat 2
<224,0> <227,0> <226,0>
Face verts 3 flags 0 mat 2
<224,0> <225,0> <227,0>
Face verts 3 flags 0 mat 2
<226,0> <227,0> <228,0>
Face verts 3 flags 0 mat 2
<228,0> <227,0> <229,0>
Face verts 3 flags 0 mat 2
<228,0> <231,0> <230,0>
Face verts 3 flags 0 mat 2
<228,0> <229,0> <231,0>
Face verts 3 flags 0 mat 2
<230,0> <231,0> <232,0>
Face verts 3 flags 0 mat 2
<232,0> <231,0> <233,0>
Face verts 3 flags 0 mat 2
<232,0> <235,0> <234,0>
Face verts 3 flags 0 mat 2
<232,0> <233,0> <235,0>
Face verts 3 flags 0 mat 2
<234,0> <235,0> <236,0>
Face verts 3 flags 0 mat 2
<236,0> <235,0> <237,0>
Face verts 3 flags 0 mat 2
<236,0> <239,0> <238,0>
Face verts 3 flags 0 mat 2
<236,0> <237,0> <239,0>
Face verts 3 flags 0 mat 2
<238,0> <239,0> <240,0>
Face verts 3 flags 0 mat 2
<240,0> <239,0> <241,0>
Face verts 3 flags 0 mat 2
<240,0> <243,0> <242,0>
Face verts 3 flags 0 mat 2
<240,0> <241,0> <243,0>
Face verts 3 flags 0 mat 2
<242,0> <243,0> <244,0>
Face verts 3 flags 0 mat 2
<244,0> <243,0> <245,0>
Face verts 3 flags 0 mat 2
<244,0> <247,0> <246,0>
Face verts 3 flags 0 mat 2
<244,0> <245,0> <247,0>
Face verts 3 flags 0 mat 2
<246,0> <247,0> <248,0>
Face verts 3 flags 0 mat 2
<248,0> <247,0> <249,0>
Face verts 3 flags 0 mat 2
<248,0> <251,0> <250,0>
Face verts 3 flags 0 mat 2
<248,0> <249,0> <251,0>
Face verts 3 flags 0 mat 2
<250,0> <251,0> <252,0>
Face verts 3 flags 0 mat 2
<252,0> <251,0> <253,0>
Face verts 3 flags 0 mat 2
<252,0> <255,0> <254,0>
Face verts 3 flags 0 mat 2
<252,0> <253,0> <255,0>
Face verts 3 flags 0 mat 2
<254,0> <255,0> <224,0>
Face verts 3 flags 0 mat 2
<224,0> <255,0> <225,0>
mat# 0
rgb 0.5186,0.4167,0.3892
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "matte"
mat# 1
rgb 0.6912,0.5814,0.5029
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "matte"
mat# 2
rgb 0.8088,0.8402,0.848
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "matte"
