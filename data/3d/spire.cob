# spire: made by art/build.sh, do not edit
Name spire
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 270
-0.8258 1.2472 0
-0.9174 0.8664 1.1728
-0.5143 0.9544 1.3914
-1.0154 0.5857 1.6592
-0.6167 0.6739 2.0245
-0.3372 0.8239 2.5966
-0.869 0 2.4745
-0.85 0.1815 3.5334
-1.07 0.3009 2.4375
-0.5474 0.3157 3.813
-0.784 0.4522 2.8823
0 0.5627 4.2695
-0.1676 0.6757 3.1536
-0.2657 0.4141 3.8493
-0.4005 0.5165 2.842
-0.4013 1.3185 0.0408
-0.1863 1.0177 1.3789
0 1.35 0.0661
0.2395 0.9654 4.4021
0.4959 1.2117 3.4828
0 1.0032 2.8724
0.8676 1.3102 0.0918
0.4055 1.3323 0.074
0.7766 1.4411 2.0122
0.2486 1.3584 1.7927
-1.0892 1.0287 -0.9558
-1.2324 0.7109 0
-0.976 0 1.3341
-1.2606 0.3252 1.1364
-1.0946 0 0
-1.2942 0.3339 -0.8401
1.1407 1.0773 1.3096
1.0399 1.1364 3.0797
1.3649 0.7873 2.2462
0.4163 0.6487 5.8439
0.8976 0.5178 5.9751
0.7679 0.9905 5.3419
1.4741 0 4.0494
1.5804 0.4444 3.3546
1.3196 0.2818 5.6992
1.2814 0.7392 4.6196
0 0.3097 4.9136
-0.3075 0.1774 4.574
0 0 5.7246
-0.7514 -0.1604 3.1048
-0.6469 -0.3731 4.402
-0.6995 0 4.6777
0 -0.725 5.3737
0 -0.3463 5.6533
-0.3581 -0.5579 5.0257
-0.3682 -0.2124 5.7511
-0.8712 -0.245 1.9389
-0.9495 -0.2449 0.8088
-1.0729 -0.6189 1.7259
-0.9817 -1.4825 0.0546
-1.1275 -1.0649 1.3039
-1.0686 -1.0092 -0.9311
-1.0098 -0.5825 0
-0.9569 -0.2468 -0.5257
0.8663 -1.3082 0
1.0508 -0.9925 1.2709
0.602 -1.1172 1.4891
1.2076 -0.6966 2.0836
0.8107 -0.8859 2.7279
0.3902 -0.9535 2.8112
1.3207 -0.282 5.7013
1.4152 -0.3979 2.9607
0.8475 -0.4888 5.8241
1.1265 -0.6498 4.2448
0.2399 -0.9673 4.4058
0.4129 -0.6434 5.8227
0.6221 -0.8024 4.3274
0.4737 -1.5564 0.0462
0.2535 -1.3852 1.7061
0 -1.7792 0.0906
-0.2809 -1.1324 5.2388
-0.5906 -1.4432 4.2327
0 -1.3952 4.1427
-0.5332 -1.7519 0.0865
-0.8098 -1.5028 2.1774
-0.3247 -1.7739 2.4054
1.0504 -0.9921 -0.8372
1.2187 -0.703 0
1.4987 0 1.8175
1.3515 -0.3486 1.2478
1.3889 0 0
1.2266 -0.3164 -0.5631
0.3867 -0.2231 5.8762
0.8927 0 5.9602
0.4195 0.242 6.2452
-0.947 -1.0349 2.9114
-0.6293 -0.8117 4.3491
-0.8646 -0.4987 3.096
1.5595 0.4023 1.3139
1.0413 0.9835 -0.7355
1.3437 0.7751 0.0512
1.557 0.4017 -0.8313
-2.1461 1.6583 -0.2
-2.3445 1.4834 0.5802
-2.0491 1.7007 0.911
-2.6965 1.3778 1.4544
-2.3255 1.586 1.6544
-1.916 1.6983 2.0153
-2.6814 0.7 2.3452
-2.4225 0.8935 2.6648
-2.8326 1.068 2.0832
-2.2345 1.1161 3.5644
-2.494 1.2631 2.5146
-1.5 1.3865 3.6473
-1.7278 1.6021 3.1776
-1.8821 1.2848 3.8675
-2.1345 1.5038 3.2345
-1.8161 1.72 -0.0741
-1.6801 1.6662 0.7167
-1.5 1.7492 0.0156
-1.2992 1.4951 2.6792
-1.1524 1.5342 1.6047
-1.5 1.657 1.981
-0.8382 1.6816 -0.1359
-1.1946 1.6855 -0.0313
-1.0115 1.5904 0.7186
-1.3281 1.6222 0.6978
-1.9824 1.5792 -1.0961
-1.6798 1.6651 -0.9677
-0.9296 1.7396 -1.1799
-1.3075 1.7331 -1.0261
-2.2297 1.3768 -0.6924
-2.5439 1.2914 -0.2
-3.0236 0.7 1.42
-2.8645 1.0457 0.6338
-2.8449 0.7 -0.2
-2.4901 0.9509 -0.6548
-0.6578 1.4812 0.5376
-0.7995 1.4518 1.5255
-0.5667 1.2287 0.973
-1.1489 1.2374 3.5514
-0.8339 1.0773 3.3421
-0.9547 1.3908 2.7011
-0.4276 0.7 2.2149
-0.4896 0.979 1.5274
-0.6898 0.8699 2.4458
-0.6555 1.1784 2.3326
-1.5 1.0332 3.9028
-1.8622 0.9052 4.0411
-1.5 0.7 4.2086
-2.3523 0.5212 2.5051
-2.1243 0.3463 3.144
-2.2019 0.7 3.4247
-1.5 0.0662 3.4138
-1.5 0.3805 3.7578
-1.8211 0.2086 3.3253
-1.8383 0.5084 3.7411
-2.7298 0.3604 1.9404
-2.8472 0.3587 0.6295
-2.6004 0.0766 1.2921
-1.95 0.0326 -0.2
-2.2701 -0.0143 0.5128
-2.1673 0.081 -0.5765
-2.508 0.1289 -0.2
-2.5793 0.4266 -0.6823
-0.8611 -0.2476 -0.1584
-0.6088 -0.1266 0.5956
-0.9607 -0.2828 0.8043
-0.5761 0.1766 0.9504
-0.7246 -0.1322 1.6027
-1.1059 -0.2458 1.8331
-0.6701 0.526 2.4735
-0.4702 0.4156 1.5413
-0.8339 0.3226 3.3422
-0.6399 0.2128 2.3516
-1.2766 -0.1844 3.1056
-1.1657 0.1884 3.3876
-0.9235 -0.0304 2.8238
-1.1898 -0.3009 -0.2
-1.3171 -0.2812 0.816
-1.5 -0.2289 -0.2
-1.7067 -0.1182 2.7649
-1.8185 -0.0644 1.5376
-1.5 -0.2307 1.7448
-1.7192 -0.0072 -0.2
-1.9039 -0.0361 0.6464
-1.6511 -0.1109 0.65
-0.9728 -0.2608 -1.058
-1.3191 -0.2706 -0.9754
-1.9032 -0.0348 -0.8613
-1.6485 -0.0967 -0.8224
-0.6636 -0.0758 -0.5939
-0.4648 0.1135 -0.1775
-0.2503 0.7 1.1278
-0.3444 0.4072 0.5829
-0.2346 0.7 -0.2
-0.3478 0.4081 -0.7171
-1.1233 0.4866 4.25
-0.8052 0.7 3.414
-1.1349 0.9068 4.1144
-2.1473 0.0053 1.4666
-2.0089 0.0553 2.4783
-2.3862 0.1979 2.3834
-0.407 0.9769 0.5677
-0.5635 1.5686 -0.7268
-0.4006 1.3228 -0.2
-0.399 0.9789 -0.7043
-0.108 0.0472 0.0716
-0.7896 -0.4015 0.5233
0.2572 0.0868 0.7727
-0.8071 -1.2 0.7801
0.0066 -0.7778 1.0839
0.9 -0.5269 0.961
0.9 0.2531 -0.0021
1.4333 -0.1324 0.5785
1.8195 -0.0623 -0.0819
0.3749 -0.1487 -0.6898
1.3199 -0.3594 -0.5536
-0.5471 -0.5161 -0.4053
-0.3343 -1.2 -0.5341
-0.8114 -1.2 0.0501
2.2743 -0.5505 0.4075
1.5807 -0.8783 0.7938
2.2666 -1.2 0.6687
0.9 -1.2 1.1341
0.2464 -1.5089 0.7787
0.9 -2.0662 1.3082
-0.2893 -1.7621 0.3721
-0.2719 -1.7539 -0.3356
0.0541 -2.2467 -0.0386
2.4771 -0.4546 -0.4973
1.7999 -2.3134 -0.1
1.9393 -1.6912 0.2535
1.4696 -2.3405 0.6353
1.7751 -1.6136 1.0736
0.9 -2.5514 -0.0653
0.3381 -2.325 0.6494
1.3528 -2.1065 -0.6663
0.4448 -2.1114 -0.6328
2.2259 -1.8267 -0.4459
2.3618 -1.2 -0.7541
2.8516 -1.2 0.0218
1.6889 0.3359 0.37
1.4679 0.292 0.37
1.4194 0.9484 0.37
1.2016 0.8029 0.37
0.9638 1.4424 0.37
0.8153 1.2202 0.37
0.2939 1.4776 0.37
0.2573 1.2933 0.37
-0.3263 1.6405 0.37
-0.2797 1.406 0.37
-1.3557 2.0289 0.37
-1.2026 1.7998 0.37
-2.6118 1.7452 0.37
-2.2933 1.5323 0.37
-3.0423 0.6052 0.37
-2.7339 0.5438 0.37
-2.223 -0.4422 0.37
-1.9834 -0.3945 0.37
-1.4335 -0.9578 0.37
-1.1711 -0.7825 0.37
-1.071 -1.6029 0.37
-0.9141 -1.3681 0.37
-0.3813 -1.9167 0.37
-0.3377 -1.6977 0.37
0.5251 -2.6399 0.37
0.4557 -2.2909 0.37
1.6335 -2.4448 0.37
1.4655 -2.1933 0.37
2.4777 -1.6555 0.37
2.2143 -1.4796 0.37
2.6136 -0.5199 0.37
2.3192 -0.4613 0.37
0 0 8.8948
Texture Vertices 1
0 0
Faces 435
Face verts 3 flags 0 mat 0
<0,0> <2,0> <1,0>
Face verts 3 flags 0 mat 0
<3,0> <1,0> <4,0>
Face verts 3 flags 0 mat 0
<5,0> <4,0> <2,0>
Face verts 3 flags 0 mat 0
<1,0> <2,0> <4,0>
Face verts 3 flags 0 mat 0
<6,0> <8,0> <7,0>
Face verts 3 flags 0 mat 0
<9,0> <7,0> <10,0>
Face verts 3 flags 0 mat 0
<3,0> <10,0> <8,0>
Face verts 3 flags 0 mat 0
<7,0> <8,0> <10,0>
Face verts 3 flags 0 mat 0
<11,0> <13,0> <12,0>
Face verts 3 flags 0 mat 0
<5,0> <12,0> <14,0>
Face verts 3 flags 0 mat 0
<9,0> <14,0> <13,0>
Face verts 3 flags 0 mat 0
<12,0> <13,0> <14,0>
Face verts 3 flags 0 mat 0
<3,0> <4,0> <10,0>
Face verts 3 flags 0 mat 0
<9,0> <10,0> <14,0>
Face verts 3 flags 0 mat 0
<5,0> <14,0> <4,0>
Face verts 3 flags 0 mat 0
<10,0> <4,0> <14,0>
Face verts 3 flags 0 mat 0
<0,0> <15,0> <2,0>
Face verts 3 flags 0 mat 0
<5,0> <2,0> <16,0>
Face verts 3 flags 0 mat 0
<17,0> <16,0> <15,0>
Face verts 3 flags 0 mat 0
<2,0> <15,0> <16,0>
Face verts 3 flags 0 mat 0
<11,0> <12,0> <18,0>
Face verts 3 flags 0 mat 0
<19,0> <18,0> <20,0>
Face verts 3 flags 0 mat 0
<5,0> <20,0> <12,0>
Face verts 3 flags 0 mat 0
<18,0> <12,0> <20,0>
Face verts 3 flags 0 mat 0
<21,0> <23,0> <22,0>
Face verts 3 flags 0 mat 0
<17,0> <22,0> <24,0>
Face verts 3 flags 0 mat 0
<19,0> <24,0> <23,0>
Face verts 3 flags 0 mat 0
<22,0> <23,0> <24,0>
Face verts 3 flags 0 mat 0
<5,0> <16,0> <20,0>
Face verts 3 flags 0 mat 0
<19,0> <20,0> <24,0>
Face verts 3 flags 0 mat 0
<17,0> <24,0> <16,0>
Face verts 3 flags 0 mat 0
<20,0> <16,0> <24,0>
Face verts 3 flags 0 mat 1
<0,0> <1,0> <25,0>
Face verts 3 flags 0 mat 0
<3,0> <26,0> <1,0>
Face verts 3 flags 0 mat 1
<25,0> <1,0> <26,0>
Face verts 3 flags 0 mat 0
<6,0> <27,0> <8,0>
Face verts 3 flags 0 mat 0
<3,0> <8,0> <28,0>
Face verts 3 flags 0 mat 0
<29,0> <28,0> <27,0>
Face verts 3 flags 0 mat 0
<8,0> <27,0> <28,0>
Face verts 3 flags 0 mat 1
<29,0> <30,0> <28,0>
Face verts 3 flags 0 mat 0
<3,0> <28,0> <26,0>
Face verts 3 flags 0 mat 1
<30,0> <26,0> <28,0>
Face verts 3 flags 0 mat 0
<21,0> <31,0> <23,0>
Face verts 3 flags 0 mat 0
<19,0> <23,0> <32,0>
Face verts 3 flags 0 mat 0
<33,0> <32,0> <31,0>
Face verts 3 flags 0 mat 0
<23,0> <31,0> <32,0>
Face verts 3 flags 0 mat 0
<11,0> <18,0> <34,0>
Face verts 3 flags 0 mat 0
<35,0> <34,0> <36,0>
Face verts 3 flags 0 mat 0
<19,0> <36,0> <18,0>
Face verts 3 flags 0 mat 0
<34,0> <18,0> <36,0>
Face verts 3 flags 0 mat 0
<37,0> <39,0> <38,0>
Face verts 3 flags 0 mat 0
<33,0> <38,0> <40,0>
Face verts 3 flags 0 mat 0
<35,0> <40,0> <39,0>
Face verts 3 flags 0 mat 0
<38,0> <39,0> <40,0>
Face verts 3 flags 0 mat 0
<19,0> <32,0> <36,0>
Face verts 3 flags 0 mat 0
<35,0> <36,0> <40,0>
Face verts 3 flags 0 mat 0
<33,0> <40,0> <32,0>
Face verts 3 flags 0 mat 0
<36,0> <32,0> <40,0>
Face verts 3 flags 0 mat 0
<11,0> <41,0> <13,0>
Face verts 3 flags 0 mat 0
<9,0> <13,0> <42,0>
Face verts 3 flags 0 mat 0
<43,0> <42,0> <41,0>
Face verts 3 flags 0 mat 0
<13,0> <41,0> <42,0>
Face verts 3 flags 0 mat 0
<6,0> <7,0> <44,0>
Face verts 3 flags 0 mat 0
<45,0> <44,0> <46,0>
Face verts 3 flags 0 mat 0
<9,0> <46,0> <7,0>
Face verts 3 flags 0 mat 0
<44,0> <7,0> <46,0>
Face verts 3 flags 0 mat 0
<47,0> <49,0> <48,0>
Face verts 3 flags 0 mat 0
<43,0> <48,0> <50,0>
Face verts 3 flags 0 mat 0
<45,0> <50,0> <49,0>
Face verts 3 flags 0 mat 0
<48,0> <49,0> <50,0>
Face verts 3 flags 0 mat 0
<9,0> <42,0> <46,0>
Face verts 3 flags 0 mat 0
<45,0> <46,0> <50,0>
Face verts 3 flags 0 mat 0
<43,0> <50,0> <42,0>
Face verts 3 flags 0 mat 0
<46,0> <42,0> <50,0>
Face verts 3 flags 0 mat 0
<6,0> <51,0> <27,0>
Face verts 3 flags 0 mat 0
<29,0> <27,0> <52,0>
Face verts 3 flags 0 mat 0
<53,0> <52,0> <51,0>
Face verts 3 flags 0 mat 0
<27,0> <51,0> <52,0>
Face verts 3 flags 0 mat 1
<54,0> <56,0> <55,0>
Face verts 3 flags 0 mat 0
<53,0> <55,0> <57,0>
Face verts 3 flags 0 mat 1
<55,0> <56,0> <57,0>
Face verts 3 flags 0 mat 1
<29,0> <52,0> <58,0>
Face verts 3 flags 0 mat 0
<53,0> <57,0> <52,0>
Face verts 3 flags 0 mat 1
<58,0> <52,0> <57,0>
Face verts 3 flags 0 mat 0
<59,0> <61,0> <60,0>
Face verts 3 flags 0 mat 0
<62,0> <60,0> <63,0>
Face verts 3 flags 0 mat 0
<64,0> <63,0> <61,0>
Face verts 3 flags 0 mat 0
<60,0> <61,0> <63,0>
Face verts 3 flags 0 mat 0
<37,0> <66,0> <65,0>
Face verts 3 flags 0 mat 0
<67,0> <65,0> <68,0>
Face verts 3 flags 0 mat 0
<62,0> <68,0> <66,0>
Face verts 3 flags 0 mat 0
<65,0> <66,0> <68,0>
Face verts 3 flags 0 mat 0
<47,0> <70,0> <69,0>
Face verts 3 flags 0 mat 0
<64,0> <69,0> <71,0>
Face verts 3 flags 0 mat 0
<67,0> <71,0> <70,0>
Face verts 3 flags 0 mat 0
<69,0> <70,0> <71,0>
Face verts 3 flags 0 mat 0
<62,0> <63,0> <68,0>
Face verts 3 flags 0 mat 0
<67,0> <68,0> <71,0>
Face verts 3 flags 0 mat 0
<64,0> <71,0> <63,0>
Face verts 3 flags 0 mat 0
<68,0> <63,0> <71,0>
Face verts 3 flags 0 mat 0
<59,0> <72,0> <61,0>
Face verts 3 flags 0 mat 0
<64,0> <61,0> <73,0>
Face verts 3 flags 0 mat 0
<74,0> <73,0> <72,0>
Face verts 3 flags 0 mat 0
<61,0> <72,0> <73,0>
Face verts 3 flags 0 mat 0
<47,0> <69,0> <75,0>
Face verts 3 flags 0 mat 0
<76,0> <75,0> <77,0>
Face verts 3 flags 0 mat 0
<64,0> <77,0> <69,0>
Face verts 3 flags 0 mat 0
<75,0> <69,0> <77,0>
Face verts 3 flags 0 mat 0
<54,0> <79,0> <78,0>
Face verts 3 flags 0 mat 0
<74,0> <78,0> <80,0>
Face verts 3 flags 0 mat 0
<76,0> <80,0> <79,0>
Face verts 3 flags 0 mat 0
<78,0> <79,0> <80,0>
Face verts 3 flags 0 mat 0
<64,0> <73,0> <77,0>
Face verts 3 flags 0 mat 0
<76,0> <77,0> <80,0>
Face verts 3 flags 0 mat 0
<74,0> <80,0> <73,0>
Face verts 3 flags 0 mat 0
<77,0> <73,0> <80,0>
Face verts 3 flags 0 mat 1
<59,0> <60,0> <81,0>
Face verts 3 flags 0 mat 0
<62,0> <82,0> <60,0>
Face verts 3 flags 0 mat 1
<81,0> <60,0> <82,0>
Face verts 3 flags 0 mat 0
<37,0> <83,0> <66,0>
Face verts 3 flags 0 mat 0
<62,0> <66,0> <84,0>
Face verts 3 flags 0 mat 0
<85,0> <84,0> <83,0>
Face verts 3 flags 0 mat 0
<66,0> <83,0> <84,0>
Face verts 3 flags 0 mat 1
<85,0> <86,0> <84,0>
Face verts 3 flags 0 mat 0
<62,0> <84,0> <82,0>
Face verts 3 flags 0 mat 1
<86,0> <82,0> <84,0>
Face verts 3 flags 0 mat 0
<47,0> <48,0> <70,0>
Face verts 3 flags 0 mat 0
<67,0> <70,0> <87,0>
Face verts 3 flags 0 mat 0
<43,0> <87,0> <48,0>
Face verts 3 flags 0 mat 0
<70,0> <48,0> <87,0>
Face verts 3 flags 0 mat 0
<37,0> <65,0> <39,0>
Face verts 3 flags 0 mat 0
<35,0> <39,0> <88,0>
Face verts 3 flags 0 mat 0
<67,0> <88,0> <65,0>
Face verts 3 flags 0 mat 0
<39,0> <65,0> <88,0>
Face verts 3 flags 0 mat 0
<11,0> <34,0> <41,0>
Face verts 3 flags 0 mat 0
<43,0> <41,0> <89,0>
Face verts 3 flags 0 mat 0
<35,0> <89,0> <34,0>
Face verts 3 flags 0 mat 0
<41,0> <34,0> <89,0>
Face verts 3 flags 0 mat 0
<67,0> <87,0> <88,0>
Face verts 3 flags 0 mat 0
<35,0> <88,0> <89,0>
Face verts 3 flags 0 mat 0
<43,0> <89,0> <87,0>
Face verts 3 flags 0 mat 0
<88,0> <87,0> <89,0>
Face verts 3 flags 0 mat 0
<54,0> <55,0> <79,0>
Face verts 3 flags 0 mat 0
<76,0> <79,0> <90,0>
Face verts 3 flags 0 mat 0
<53,0> <90,0> <55,0>
Face verts 3 flags 0 mat 0
<79,0> <55,0> <90,0>
Face verts 3 flags 0 mat 0
<47,0> <75,0> <49,0>
Face verts 3 flags 0 mat 0
<45,0> <49,0> <91,0>
Face verts 3 flags 0 mat 0
<76,0> <91,0> <75,0>
Face verts 3 flags 0 mat 0
<49,0> <75,0> <91,0>
Face verts 3 flags 0 mat 0
<6,0> <44,0> <51,0>
Face verts 3 flags 0 mat 0
<53,0> <51,0> <92,0>
Face verts 3 flags 0 mat 0
<45,0> <92,0> <44,0>
Face verts 3 flags 0 mat 0
<51,0> <44,0> <92,0>
Face verts 3 flags 0 mat 0
<76,0> <90,0> <91,0>
Face verts 3 flags 0 mat 0
<45,0> <91,0> <92,0>
Face verts 3 flags 0 mat 0
<53,0> <92,0> <90,0>
Face verts 3 flags 0 mat 0
<91,0> <90,0> <92,0>
Face verts 3 flags 0 mat 0
<37,0> <38,0> <83,0>
Face verts 3 flags 0 mat 0
<85,0> <83,0> <93,0>
Face verts 3 flags 0 mat 0
<33,0> <93,0> <38,0>
Face verts 3 flags 0 mat 0
<83,0> <38,0> <93,0>
Face verts 3 flags 0 mat 1
<21,0> <94,0> <31,0>
Face verts 3 flags 0 mat 0
<33,0> <31,0> <95,0>
Face verts 3 flags 0 mat 1
<31,0> <94,0> <95,0>
Face verts 3 flags 0 mat 1
<85,0> <93,0> <96,0>
Face verts 3 flags 0 mat 0
<33,0> <95,0> <93,0>
Face verts 3 flags 0 mat 1
<96,0> <93,0> <95,0>
Face verts 3 flags 0 mat 0
<97,0> <99,0> <98,0>
Face verts 3 flags 0 mat 0
<100,0> <98,0> <101,0>
Face verts 3 flags 0 mat 0
<102,0> <101,0> <99,0>
Face verts 3 flags 0 mat 0
<98,0> <99,0> <101,0>
Face verts 3 flags 0 mat 0
<103,0> <105,0> <104,0>
Face verts 3 flags 0 mat 0
<106,0> <104,0> <107,0>
Face verts 3 flags 0 mat 0
<100,0> <107,0> <105,0>
Face verts 3 flags 0 mat 0
<104,0> <105,0> <107,0>
Face verts 3 flags 0 mat 0
<108,0> <110,0> <109,0>
Face verts 3 flags 0 mat 0
<102,0> <109,0> <111,0>
Face verts 3 flags 0 mat 0
<106,0> <111,0> <110,0>
Face verts 3 flags 0 mat 0
<109,0> <110,0> <111,0>
Face verts 3 flags 0 mat 0
<100,0> <101,0> <107,0>
Face verts 3 flags 0 mat 0
<106,0> <107,0> <111,0>
Face verts 3 flags 0 mat 0
<102,0> <111,0> <101,0>
Face verts 3 flags 0 mat 0
<107,0> <101,0> <111,0>
Face verts 3 flags 0 mat 0
<97,0> <112,0> <99,0>
Face verts 3 flags 0 mat 0
<102,0> <99,0> <113,0>
Face verts 3 flags 0 mat 0
<114,0> <113,0> <112,0>
Face verts 3 flags 0 mat 0
<99,0> <112,0> <113,0>
Face verts 3 flags 0 mat 0
<108,0> <109,0> <115,0>
Face verts 3 flags 0 mat 0
<116,0> <115,0> <117,0>
Face verts 3 flags 0 mat 0
<102,0> <117,0> <109,0>
Face verts 3 flags 0 mat 0
<115,0> <109,0> <117,0>
Face verts 3 flags 0 mat 0
<118,0> <120,0> <119,0>
Face verts 3 flags 0 mat 0
<114,0> <119,0> <121,0>
Face verts 3 flags 0 mat 0
<116,0> <121,0> <120,0>
Face verts 3 flags 0 mat 0
<119,0> <120,0> <121,0>
Face verts 3 flags 0 mat 0
<102,0> <113,0> <117,0>
Face verts 3 flags 0 mat 0
<116,0> <117,0> <121,0>
Face verts 3 flags 0 mat 0
<114,0> <121,0> <113,0>
Face verts 3 flags 0 mat 0
<117,0> <113,0> <121,0>
Face verts 3 flags 0 mat 1
<97,0> <122,0> <112,0>
Face verts 3 flags 0 mat 1
<114,0> <112,0> <123,0>
Face verts 3 flags 0 mat 1
<118,0> <119,0> <124,0>
Face verts 3 flags 0 mat 1
<114,0> <125,0> <119,0>
Face verts 3 flags 0 mat 1
<97,0> <98,0> <126,0>
Face verts 3 flags 0 mat 0
<100,0> <127,0> <98,0>
Face verts 3 flags 0 mat 1
<126,0> <98,0> <127,0>
Face verts 3 flags 0 mat 0
<103,0> <128,0> <105,0>
Face verts 3 flags 0 mat 0
<100,0> <105,0> <129,0>
Face verts 3 flags 0 mat 0
<130,0> <129,0> <128,0>
Face verts 3 flags 0 mat 0
<105,0> <128,0> <129,0>
Face verts 3 flags 0 mat 1
<130,0> <131,0> <129,0>
Face verts 3 flags 0 mat 0
<100,0> <129,0> <127,0>
Face verts 3 flags 0 mat 1
<131,0> <127,0> <129,0>
Face verts 3 flags 0 mat 0
<118,0> <132,0> <120,0>
Face verts 3 flags 0 mat 0
<116,0> <120,0> <133,0>
Face verts 3 flags 0 mat 0
<134,0> <133,0> <132,0>
Face verts 3 flags 0 mat 0
<120,0> <132,0> <133,0>
Face verts 3 flags 0 mat 0
<108,0> <115,0> <135,0>
Face verts 3 flags 0 mat 0
<136,0> <135,0> <137,0>
Face verts 3 flags 0 mat 0
<116,0> <137,0> <115,0>
Face verts 3 flags 0 mat 0
<135,0> <115,0> <137,0>
Face verts 3 flags 0 mat 0
<138,0> <140,0> <139,0>
Face verts 3 flags 0 mat 0
<134,0> <139,0> <141,0>
Face verts 3 flags 0 mat 0
<136,0> <141,0> <140,0>
Face verts 3 flags 0 mat 0
<139,0> <140,0> <141,0>
Face verts 3 flags 0 mat 0
<116,0> <133,0> <137,0>
Face verts 3 flags 0 mat 0
<136,0> <137,0> <141,0>
Face verts 3 flags 0 mat 0
<134,0> <141,0> <133,0>
Face verts 3 flags 0 mat 0
<137,0> <133,0> <141,0>
Face verts 3 flags 0 mat 0
<108,0> <142,0> <110,0>
Face verts 3 flags 0 mat 0
<106,0> <110,0> <143,0>
Face verts 3 flags 0 mat 0
<144,0> <143,0> <142,0>
Face verts 3 flags 0 mat 0
<110,0> <142,0> <143,0>
Face verts 3 flags 0 mat 0
<103,0> <104,0> <145,0>
Face verts 3 flags 0 mat 0
<146,0> <145,0> <147,0>
Face verts 3 flags 0 mat 0
<106,0> <147,0> <104,0>
Face verts 3 flags 0 mat 0
<145,0> <104,0> <147,0>
Face verts 3 flags 0 mat 0
<148,0> <150,0> <149,0>
Face verts 3 flags 0 mat 0
<144,0> <149,0> <151,0>
Face verts 3 flags 0 mat 0
<146,0> <151,0> <150,0>
Face verts 3 flags 0 mat 0
<149,0> <150,0> <151,0>
Face verts 3 flags 0 mat 0
<106,0> <143,0> <147,0>
Face verts 3 flags 0 mat 0
<146,0> <147,0> <151,0>
Face verts 3 flags 0 mat 0
<144,0> <151,0> <143,0>
Face verts 3 flags 0 mat 0
<147,0> <143,0> <151,0>
Face verts 3 flags 0 mat 0
<103,0> <152,0> <128,0>
Face verts 3 flags 0 mat 0
<130,0> <128,0> <153,0>
Face verts 3 flags 0 mat 0
<154,0> <153,0> <152,0>
Face verts 3 flags 0 mat 0
<128,0> <152,0> <153,0>
Face verts 3 flags 0 mat 1
<155,0> <157,0> <156,0>
Face verts 3 flags 0 mat 0
<154,0> <156,0> <158,0>
Face verts 3 flags 0 mat 1
<156,0> <157,0> <158,0>
Face verts 3 flags 0 mat 1
<130,0> <153,0> <159,0>
Face verts 3 flags 0 mat 0
<154,0> <158,0> <153,0>
Face verts 3 flags 0 mat 1
<159,0> <153,0> <158,0>
Face verts 3 flags 0 mat 0
<160,0> <162,0> <161,0>
Face verts 3 flags 0 mat 0
<163,0> <161,0> <164,0>
Face verts 3 flags 0 mat 0
<165,0> <164,0> <162,0>
Face verts 3 flags 0 mat 0
<161,0> <162,0> <164,0>
Face verts 3 flags 0 mat 0
<138,0> <167,0> <166,0>
Face verts 3 flags 0 mat 0
<168,0> <166,0> <169,0>
Face verts 3 flags 0 mat 0
<163,0> <169,0> <167,0>
Face verts 3 flags 0 mat 0
<166,0> <167,0> <169,0>
Face verts 3 flags 0 mat 0
<148,0> <171,0> <170,0>
Face verts 3 flags 0 mat 0
<165,0> <170,0> <172,0>
Face verts 3 flags 0 mat 0
<168,0> <172,0> <171,0>
Face verts 3 flags 0 mat 0
<170,0> <171,0> <172,0>
Face verts 3 flags 0 mat 0
<163,0> <164,0> <169,0>
Face verts 3 flags 0 mat 0
<168,0> <169,0> <172,0>
Face verts 3 flags 0 mat 0
<165,0> <172,0> <164,0>
Face verts 3 flags 0 mat 0
<169,0> <164,0> <172,0>
Face verts 3 flags 0 mat 0
<160,0> <173,0> <162,0>
Face verts 3 flags 0 mat 0
<165,0> <162,0> <174,0>
Face verts 3 flags 0 mat 0
<175,0> <174,0> <173,0>
Face verts 3 flags 0 mat 0
<162,0> <173,0> <174,0>
Face verts 3 flags 0 mat 0
<148,0> <170,0> <176,0>
Face verts 3 flags 0 mat 0
<177,0> <176,0> <178,0>
Face verts 3 flags 0 mat 0
<165,0> <178,0> <170,0>
Face verts 3 flags 0 mat 0
<176,0> <170,0> <178,0>
Face verts 3 flags 0 mat 0
<155,0> <180,0> <179,0>
Face verts 3 flags 0 mat 0
<175,0> <179,0> <181,0>
Face verts 3 flags 0 mat 0
<177,0> <181,0> <180,0>
Face verts 3 flags 0 mat 0
<179,0> <180,0> <181,0>
Face verts 3 flags 0 mat 0
<165,0> <174,0> <178,0>
Face verts 3 flags 0 mat 0
<177,0> <178,0> <181,0>
Face verts 3 flags 0 mat 0
<175,0> <181,0> <174,0>
Face verts 3 flags 0 mat 0
<178,0> <174,0> <181,0>
Face verts 3 flags 0 mat 1
<160,0> <182,0> <173,0>
Face verts 3 flags 0 mat 1
<175,0> <173,0> <183,0>
Face verts 3 flags 0 mat 1
<155,0> <179,0> <184,0>
Face verts 3 flags 0 mat 1
<175,0> <185,0> <179,0>
Face verts 3 flags 0 mat 1
<160,0> <161,0> <186,0>
Face verts 3 flags 0 mat 0
<163,0> <187,0> <161,0>
Face verts 3 flags 0 mat 1
<186,0> <161,0> <187,0>
Face verts 3 flags 0 mat 0
<138,0> <188,0> <167,0>
Face verts 3 flags 0 mat 0
<163,0> <167,0> <189,0>
Face verts 3 flags 0 mat 0
<190,0> <189,0> <188,0>
Face verts 3 flags 0 mat 0
<167,0> <188,0> <189,0>
Face verts 3 flags 0 mat 1
<190,0> <191,0> <189,0>
Face verts 3 flags 0 mat 0
<163,0> <189,0> <187,0>
Face verts 3 flags 0 mat 1
<191,0> <187,0> <189,0>
Face verts 3 flags 0 mat 0
<148,0> <149,0> <171,0>
Face verts 3 flags 0 mat 0
<168,0> <171,0> <192,0>
Face verts 3 flags 0 mat 0
<144,0> <192,0> <149,0>
Face verts 3 flags 0 mat 0
<171,0> <149,0> <192,0>
Face verts 3 flags 0 mat 0
<138,0> <166,0> <140,0>
Face verts 3 flags 0 mat 0
<136,0> <140,0> <193,0>
Face verts 3 flags 0 mat 0
<168,0> <193,0> <166,0>
Face verts 3 flags 0 mat 0
<140,0> <166,0> <193,0>
Face verts 3 flags 0 mat 0
<108,0> <135,0> <142,0>
Face verts 3 flags 0 mat 0
<144,0> <142,0> <194,0>
Face verts 3 flags 0 mat 0
<136,0> <194,0> <135,0>
Face verts 3 flags 0 mat 0
<142,0> <135,0> <194,0>
Face verts 3 flags 0 mat 0
<168,0> <192,0> <193,0>
Face verts 3 flags 0 mat 0
<136,0> <193,0> <194,0>
Face verts 3 flags 0 mat 0
<144,0> <194,0> <192,0>
Face verts 3 flags 0 mat 0
<193,0> <192,0> <194,0>
Face verts 3 flags 0 mat 0
<155,0> <156,0> <180,0>
Face verts 3 flags 0 mat 0
<177,0> <180,0> <195,0>
Face verts 3 flags 0 mat 0
<154,0> <195,0> <156,0>
Face verts 3 flags 0 mat 0
<180,0> <156,0> <195,0>
Face verts 3 flags 0 mat 0
<148,0> <176,0> <150,0>
Face verts 3 flags 0 mat 0
<146,0> <150,0> <196,0>
Face verts 3 flags 0 mat 0
<177,0> <196,0> <176,0>
Face verts 3 flags 0 mat 0
<150,0> <176,0> <196,0>
Face verts 3 flags 0 mat 0
<103,0> <145,0> <152,0>
Face verts 3 flags 0 mat 0
<154,0> <152,0> <197,0>
Face verts 3 flags 0 mat 0
<146,0> <197,0> <145,0>
Face verts 3 flags 0 mat 0
<152,0> <145,0> <197,0>
Face verts 3 flags 0 mat 0
<177,0> <195,0> <196,0>
Face verts 3 flags 0 mat 0
<146,0> <196,0> <197,0>
Face verts 3 flags 0 mat 0
<154,0> <197,0> <195,0>
Face verts 3 flags 0 mat 0
<196,0> <195,0> <197,0>
Face verts 3 flags 0 mat 1
<155,0> <184,0> <157,0>
Face verts 3 flags 0 mat 0
<138,0> <139,0> <188,0>
Face verts 3 flags 0 mat 0
<190,0> <188,0> <198,0>
Face verts 3 flags 0 mat 0
<134,0> <198,0> <139,0>
Face verts 3 flags 0 mat 0
<188,0> <139,0> <198,0>
Face verts 3 flags 0 mat 1
<118,0> <199,0> <132,0>
Face verts 3 flags 0 mat 0
<134,0> <132,0> <200,0>
Face verts 3 flags 0 mat 1
<132,0> <199,0> <200,0>
Face verts 3 flags 0 mat 1
<190,0> <198,0> <201,0>
Face verts 3 flags 0 mat 0
<134,0> <200,0> <198,0>
Face verts 3 flags 0 mat 1
<201,0> <198,0> <200,0>
Face verts 3 flags 0 mat 0
<202,0> <204,0> <203,0>
Face verts 3 flags 0 mat 0
<205,0> <203,0> <206,0>
Face verts 3 flags 0 mat 0
<207,0> <206,0> <204,0>
Face verts 3 flags 0 mat 0
<203,0> <204,0> <206,0>
Face verts 3 flags 0 mat 0
<202,0> <208,0> <204,0>
Face verts 3 flags 0 mat 0
<207,0> <204,0> <209,0>
Face verts 3 flags 0 mat 0
<210,0> <209,0> <208,0>
Face verts 3 flags 0 mat 0
<204,0> <208,0> <209,0>
Face verts 3 flags 0 mat 1
<202,0> <211,0> <208,0>
Face verts 3 flags 0 mat 1
<210,0> <208,0> <212,0>
Face verts 3 flags 0 mat 1
<208,0> <211,0> <212,0>
Face verts 3 flags 0 mat 1
<202,0> <213,0> <211,0>
Face verts 3 flags 0 mat 1
<202,0> <203,0> <213,0>
Face verts 3 flags 0 mat 1
<214,0> <213,0> <215,0>
Face verts 3 flags 0 mat 0
<205,0> <215,0> <203,0>
Face verts 3 flags 0 mat 1
<213,0> <203,0> <215,0>
Face verts 3 flags 0 mat 0
<210,0> <216,0> <209,0>
Face verts 3 flags 0 mat 0
<207,0> <209,0> <217,0>
Face verts 3 flags 0 mat 0
<218,0> <217,0> <216,0>
Face verts 3 flags 0 mat 0
<209,0> <216,0> <217,0>
Face verts 3 flags 0 mat 0
<207,0> <219,0> <206,0>
Face verts 3 flags 0 mat 0
<205,0> <206,0> <220,0>
Face verts 3 flags 0 mat 0
<221,0> <220,0> <219,0>
Face verts 3 flags 0 mat 0
<206,0> <219,0> <220,0>
Face verts 3 flags 0 mat 0
<205,0> <222,0> <215,0>
Face verts 3 flags 0 mat 1
<214,0> <215,0> <223,0>
Face verts 3 flags 0 mat 1
<224,0> <223,0> <222,0>
Face verts 3 flags 0 mat 1
<215,0> <222,0> <223,0>
Face verts 3 flags 0 mat 1
<210,0> <212,0> <225,0>
Face verts 3 flags 0 mat 0
<226,0> <228,0> <227,0>
Face verts 3 flags 0 mat 0
<218,0> <227,0> <229,0>
Face verts 3 flags 0 mat 0
<221,0> <229,0> <228,0>
Face verts 3 flags 0 mat 0
<227,0> <228,0> <229,0>
Face verts 3 flags 0 mat 1
<226,0> <230,0> <228,0>
Face verts 3 flags 0 mat 0
<221,0> <228,0> <231,0>
Face verts 3 flags 0 mat 0
<224,0> <231,0> <230,0>
Face verts 3 flags 0 mat 0
<228,0> <230,0> <231,0>
Face verts 3 flags 0 mat 1
<226,0> <232,0> <230,0>
Face verts 3 flags 0 mat 1
<224,0> <230,0> <233,0>
Face verts 3 flags 0 mat 1
<230,0> <232,0> <233,0>
Face verts 3 flags 0 mat 1
<226,0> <234,0> <232,0>
Face verts 3 flags 0 mat 1
<226,0> <227,0> <234,0>
Face verts 3 flags 0 mat 1
<235,0> <234,0> <236,0>
Face verts 3 flags 0 mat 0
<218,0> <236,0> <227,0>
Face verts 3 flags 0 mat 1
<234,0> <227,0> <236,0>
Face verts 3 flags 0 mat 0
<221,0> <219,0> <229,0>
Face verts 3 flags 0 mat 0
<218,0> <229,0> <217,0>
Face verts 3 flags 0 mat 0
<207,0> <217,0> <219,0>
Face verts 3 flags 0 mat 0
<229,0> <219,0> <217,0>
Face verts 3 flags 0 mat 0
<224,0> <222,0> <231,0>
Face verts 3 flags 0 mat 0
<221,0> <231,0> <220,0>
Face verts 3 flags 0 mat 0
<205,0> <220,0> <222,0>
Face verts 3 flags 0 mat 0
<231,0> <222,0> <220,0>
Face verts 3 flags 0 mat 1
<224,0> <233,0> <223,0>
Face verts 3 flags 0 mat 0
<218,0> <216,0> <236,0>
Face verts 3 flags 0 mat 1
<235,0> <236,0> <225,0>
Face verts 3 flags 0 mat 1
<210,0> <225,0> <216,0>
Face verts 3 flags 0 mat 1
<236,0> <216,0> <225,0>
Face verts 3 flags 0 mat 2
<237,0> <240,0> <239,0>
Face verts 3 flags 0 mat 2
<237,0> <238,0> <240,0>
Face verts 3 flags 0 mat 2
<239,0> <240,0> <241,0>
Face verts 3 flags 0 mat 2
<241,0> <240,0> <242,0>
Face verts 3 flags 0 mat 2
<241,0> <244,0> <243,0>
Face verts 3 flags 0 mat 2
<241,0> <242,0> <244,0>
Face verts 3 flags 0 mat 2
<243,0> <244,0> <245,0>
Face verts 3 flags 0 mat 2
<245,0> <244,0> <246,0>
Face verts 3 flags 0 mat 2
<245,0> <248,0> <247,0>
Face verts 3 flags 0 mat 2
<245,0> <246,0> <248,0>
Face verts 3 flags 0 mat 2
<247,0> <248,0> <249,0>
Face verts 3 flags 0 mat 2
<249,0> <248,0> <250,0>
Face verts 3 flags 0 mat 2
<249,0> <252,0> <251,0>
Face verts 3 flags 0 mat 2
<249,0> <250,0> <252,0>
Face verts 3 flags 0 mat 2
<251,0> <252,0> <253,0>
Face verts 3 flags 0 mat 2
<253,0> <252,0> <254,0>
Face verts 3 flags 0 mat 2
<253,0> <256,0> <255,0>
Face verts 3 flags 0 mat 2
<253,0> <254,0> <256,0>
Face verts 3 flags 0 mat 2
<255,0> <256,0> <257,0>
Face verts 3 flags 0 mat 2
<257,0> <256,0> <258,0>
Face verts 3 flags 0 mat 2
<257,0> <260,0> <259,0>
Face verts 3 flags 0 mat 2
<257,0> <258,0> <260,0>
Face verts 3 flags 0 mat 2
<259,0> <260,0> <261,0>
Face verts 3 flags 0 mat 2
<261,0> <260,0> <262,0>
Face verts 3 flags 0 mat 2
<261,0> <264,0> <263,0>
Face verts 3 flags 0 mat 2
<261,0> <262,0> <264,0>
Face verts 3 flags 0 mat 2
<263,0> <264,0> <265,0>
Face verts 3 flags 0 mat 2
<265,0> <264,0> <266,0>
Face verts 3 flags 0 mat 2
<265,0> <268,0> <267,0>
Face verts 3 flags 0 mat 2
<265,0> <266,0> <268,0>
Face verts 3 flags 0 mat 2
<267,0> <268,0> <237,0>
Face verts 3 flags 0 mat 2
<237,0> <268,0> <238,0>
mat# 0
rgb 0.6912,0.5814,0.5029
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "matte"
mat# 1
rgb 0.5186,0.4167,0.3892
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
