set -g _HIP_SAVEVERSION = '19.5.303'
out/m1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m1.$F4.exr"	)
}
out/m2.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m2.$F4.exr"	)
}
out/m3.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m3.$F4.exr"	)
}
out/m4.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m4.$F4.exr"	)
}
out/m5.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m5.$F4.exr"	)
}
out/m6.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m6.$F4.exr"	)
}
out/m7.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m7.$F4.exr"	)
}
out/m8.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m8.$F4.exr"	)
}
out/m9.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m9.$F4.exr"	)
}
out/m10.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m10.$F4.exr"	)
}
out/m11.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m11.$F4.exr"	)
}
out/m12.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m12.$F4.exr"	)
}
out/m13.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m13.$F4.exr"	)
}
out/m14.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m14.$F4.exr"	)
}
out/m15.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m15.$F4.exr"	)
}
out/m16.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m16.$F4.exr"	)
}
out/m17.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m17.$F4.exr"	)
}
out/m18.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m18.$F4.exr"	)
}
out/m19.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m19.$F4.exr"	)
}
out/m20.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m20.$F4.exr"	)
}
out/m21.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m21.$F4.exr"	)
}
out/m22.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m22.$F4.exr"	)
}
out/m23.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m23.$F4.exr"	)
}
out/m24.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m24.$F4.exr"	)
}
out/m25.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m25.$F4.exr"	)
}
out/m26.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m26.$F4.exr"	)
}
out/m27.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m27.$F4.exr"	)
}
out/m28.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m28.$F4.exr"	)
}
out/m29.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m29.$F4.exr"	)
}
out/m30.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m30.$F4.exr"	)
}
out/m31.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m31.$F4.exr"	)
}
out/m32.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m32.$F4.exr"	)
}
out/m33.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m33.$F4.exr"	)
}
out/m34.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m34.$F4.exr"	)
}
out/m35.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m35.$F4.exr"	)
}
out/m36.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m36.$F4.exr"	)
}
out/m37.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m37.$F4.exr"	)
}
out/m38.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m38.$F4.exr"	)
}
out/m39.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m39.$F4.exr"	)
}
out/m40.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m40.$F4.exr"	)
}
out/m41.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m41.$F4.exr"	)
}
out/m42.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m42.$F4.exr"	)
}
out/m43.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m43.$F4.exr"	)
}
out/m44.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m44.$F4.exr"	)
}
out/m45.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m45.$F4.exr"	)
}
out/m46.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m46.$F4.exr"	)
}
out/m47.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m47.$F4.exr"	)
}
out/m48.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m48.$F4.exr"	)
}
out/m49.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m49.$F4.exr"	)
}
out/m50.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m50.$F4.exr"	)
}
out/m51.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m51.$F4.exr"	)
}
out/m52.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m52.$F4.exr"	)
}
out/m53.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m53.$F4.exr"	)
}
out/m54.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m54.$F4.exr"	)
}
out/m55.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m55.$F4.exr"	)
}
out/m56.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m56.$F4.exr"	)
}
out/m57.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m57.$F4.exr"	)
}
out/m58.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m58.$F4.exr"	)
}
out/m59.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m59.$F4.exr"	)
}
out/m60.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m60.$F4.exr"	)
}
out/m61.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m61.$F4.exr"	)
}
out/m62.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m62.$F4.exr"	)
}
out/m63.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m63.$F4.exr"	)
}
out/m64.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m64.$F4.exr"	)
}
out/m65.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m65.$F4.exr"	)
}
out/m66.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m66.$F4.exr"	)
}
out/m67.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m67.$F4.exr"	)
}
out/m68.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m68.$F4.exr"	)
}
out/m69.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m69.$F4.exr"	)
}
out/m70.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m70.$F4.exr"	)
}
out/m71.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m71.$F4.exr"	)
}
out/m72.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m72.$F4.exr"	)
}
out/m73.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m73.$F4.exr"	)
}
out/m74.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m74.$F4.exr"	)
}
out/m75.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m75.$F4.exr"	)
}
out/m76.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m76.$F4.exr"	)
}
out/m77.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m77.$F4.exr"	)
}
out/m78.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m78.$F4.exr"	)
}
out/m79.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m79.$F4.exr"	)
}
out/m80.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m80.$F4.exr"	)
}
out/m81.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m81.$F4.exr"	)
}
out/m82.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m82.$F4.exr"	)
}
out/m83.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m83.$F4.exr"	)
}
out/m84.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m84.$F4.exr"	)
}
out/m85.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m85.$F4.exr"	)
}
out/m86.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m86.$F4.exr"	)
}
out/m87.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m87.$F4.exr"	)
}
out/m88.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m88.$F4.exr"	)
}
out/m89.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m89.$F4.exr"	)
}
out/m90.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m90.$F4.exr"	)
}
out/m91.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m91.$F4.exr"	)
}
out/m92.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m92.$F4.exr"	)
}
out/m93.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m93.$F4.exr"	)
}
out/m94.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m94.$F4.exr"	)
}
out/m95.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m95.$F4.exr"	)
}
out/m96.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m96.$F4.exr"	)
}
out/m97.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m97.$F4.exr"	)
}
out/m98.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m98.$F4.exr"	)
}
out/m99.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m99.$F4.exr"	)
}
out/m100.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m100.$F4.exr"	)
}
out/m101.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m101.$F4.exr"	)
}
out/m102.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m102.$F4.exr"	)
}
out/m103.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m103.$F4.exr"	)
}
out/m104.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m104.$F4.exr"	)
}
out/m105.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m105.$F4.exr"	)
}
out/m106.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m106.$F4.exr"	)
}
out/m107.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m107.$F4.exr"	)
}
out/m108.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m108.$F4.exr"	)
}
out/m109.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m109.$F4.exr"	)
}
out/m110.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m110.$F4.exr"	)
}
out/m111.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m111.$F4.exr"	)
}
out/m112.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m112.$F4.exr"	)
}
out/m113.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m113.$F4.exr"	)
}
out/m114.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m114.$F4.exr"	)
}
out/m115.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m115.$F4.exr"	)
}
out/m116.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m116.$F4.exr"	)
}
out/m117.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m117.$F4.exr"	)
}
out/m118.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m118.$F4.exr"	)
}
out/m119.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m119.$F4.exr"	)
}
out/m120.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m120.$F4.exr"	)
}
out/m121.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m121.$F4.exr"	)
}
out/m122.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m122.$F4.exr"	)
}
out/m123.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m123.$F4.exr"	)
}
out/m124.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m124.$F4.exr"	)
}
out/m125.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m125.$F4.exr"	)
}
out/m126.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m126.$F4.exr"	)
}
out/m127.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m127.$F4.exr"	)
}
out/m128.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m128.$F4.exr"	)
}
out/m129.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m129.$F4.exr"	)
}
out/m130.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m130.$F4.exr"	)
}
out/m131.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m131.$F4.exr"	)
}
out/m132.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m132.$F4.exr"	)
}
out/m133.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m133.$F4.exr"	)
}
out/m134.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m134.$F4.exr"	)
}
out/m135.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m135.$F4.exr"	)
}
out/m136.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m136.$F4.exr"	)
}
out/m137.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m137.$F4.exr"	)
}
out/m138.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m138.$F4.exr"	)
}
out/m139.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m139.$F4.exr"	)
}
out/m140.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m140.$F4.exr"	)
}
out/m141.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m141.$F4.exr"	)
}
out/m142.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m142.$F4.exr"	)
}
out/m143.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m143.$F4.exr"	)
}
out/m144.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m144.$F4.exr"	)
}
out/m145.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m145.$F4.exr"	)
}
out/m146.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m146.$F4.exr"	)
}
out/m147.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m147.$F4.exr"	)
}
out/m148.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m148.$F4.exr"	)
}
out/m149.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m149.$F4.exr"	)
}
out/m150.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m150.$F4.exr"	)
}
out/m151.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m151.$F4.exr"	)
}
out/m152.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m152.$F4.exr"	)
}
out/m153.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m153.$F4.exr"	)
}
out/m154.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m154.$F4.exr"	)
}
out/m155.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m155.$F4.exr"	)
}
out/m156.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m156.$F4.exr"	)
}
out/m157.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m157.$F4.exr"	)
}
out/m158.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m158.$F4.exr"	)
}
out/m159.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m159.$F4.exr"	)
}
out/m160.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m160.$F4.exr"	)
}
out/m161.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m161.$F4.exr"	)
}
out/m162.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m162.$F4.exr"	)
}
out/m163.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m163.$F4.exr"	)
}
out/m164.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m164.$F4.exr"	)
}
out/m165.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m165.$F4.exr"	)
}
out/m166.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m166.$F4.exr"	)
}
out/m167.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m167.$F4.exr"	)
}
out/m168.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m168.$F4.exr"	)
}
out/m169.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m169.$F4.exr"	)
}
out/m170.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m170.$F4.exr"	)
}
out/m171.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m171.$F4.exr"	)
}
out/m172.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m172.$F4.exr"	)
}
out/m173.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m173.$F4.exr"	)
}
out/m174.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m174.$F4.exr"	)
}
out/m175.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m175.$F4.exr"	)
}
out/m176.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m176.$F4.exr"	)
}
out/m177.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m177.$F4.exr"	)
}
out/m178.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m178.$F4.exr"	)
}
out/m179.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m179.$F4.exr"	)
}
out/m180.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m180.$F4.exr"	)
}
out/m181.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m181.$F4.exr"	)
}
out/m182.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m182.$F4.exr"	)
}
out/m183.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m183.$F4.exr"	)
}
out/m184.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m184.$F4.exr"	)
}
out/m185.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m185.$F4.exr"	)
}
out/m186.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m186.$F4.exr"	)
}
out/m187.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m187.$F4.exr"	)
}
out/m188.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m188.$F4.exr"	)
}
out/m189.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m189.$F4.exr"	)
}
out/m190.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m190.$F4.exr"	)
}
out/m191.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m191.$F4.exr"	)
}
out/m192.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m192.$F4.exr"	)
}
out/m193.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m193.$F4.exr"	)
}
out/m194.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m194.$F4.exr"	)
}
out/m195.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m195.$F4.exr"	)
}
out/m196.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m196.$F4.exr"	)
}
out/m197.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m197.$F4.exr"	)
}
out/m198.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m198.$F4.exr"	)
}
out/m199.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m199.$F4.exr"	)
}
out/m200.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m200.$F4.exr"	)
}
out/m201.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m201.$F4.exr"	)
}
out/m202.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m202.$F4.exr"	)
}
out/m203.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m203.$F4.exr"	)
}
out/m204.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m204.$F4.exr"	)
}
out/m205.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m205.$F4.exr"	)
}
out/m206.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m206.$F4.exr"	)
}
out/m207.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m207.$F4.exr"	)
}
out/m208.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m208.$F4.exr"	)
}
out/m209.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m209.$F4.exr"	)
}
out/m210.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m210.$F4.exr"	)
}
out/m211.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m211.$F4.exr"	)
}
out/m212.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m212.$F4.exr"	)
}
out/m213.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m213.$F4.exr"	)
}
out/m214.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m214.$F4.exr"	)
}
out/m215.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m215.$F4.exr"	)
}
out/m216.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m216.$F4.exr"	)
}
out/m217.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m217.$F4.exr"	)
}
out/m218.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m218.$F4.exr"	)
}
out/m219.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m219.$F4.exr"	)
}
out/m220.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m220.$F4.exr"	)
}
out/m221.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m221.$F4.exr"	)
}
out/m222.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m222.$F4.exr"	)
}
out/m223.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m223.$F4.exr"	)
}
out/m224.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m224.$F4.exr"	)
}
out/m225.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m225.$F4.exr"	)
}
out/m226.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m226.$F4.exr"	)
}
out/m227.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m227.$F4.exr"	)
}
out/m228.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m228.$F4.exr"	)
}
out/m229.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m229.$F4.exr"	)
}
out/m230.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m230.$F4.exr"	)
}
out/m231.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m231.$F4.exr"	)
}
out/m232.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m232.$F4.exr"	)
}
out/m233.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m233.$F4.exr"	)
}
out/m234.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m234.$F4.exr"	)
}
out/m235.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m235.$F4.exr"	)
}
out/m236.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m236.$F4.exr"	)
}
out/m237.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m237.$F4.exr"	)
}
out/m238.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m238.$F4.exr"	)
}
out/m239.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m239.$F4.exr"	)
}
out/m240.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m240.$F4.exr"	)
}
out/m241.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m241.$F4.exr"	)
}
out/m242.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m242.$F4.exr"	)
}
out/m243.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m243.$F4.exr"	)
}
out/m244.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m244.$F4.exr"	)
}
out/m245.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m245.$F4.exr"	)
}
out/m246.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m246.$F4.exr"	)
}
out/m247.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m247.$F4.exr"	)
}
out/m248.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m248.$F4.exr"	)
}
out/m249.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m249.$F4.exr"	)
}
out/m250.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m250.$F4.exr"	)
}
out/m251.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m251.$F4.exr"	)
}
out/m252.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m252.$F4.exr"	)
}
